// Whatever lies where a picture should be, it is none or one of a bounded size, and nothing is said about it.
#include <QGuiApplication>
#include <QImage>
#include <QtGlobal>

#include "TemporaryFolder.h"
#include "app/ImageFile.h"

namespace {

using lumo::fuzz::expect;

constexpr qsizetype kMostBytes = 64 * 1024 * 1024;

constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1A\n";

std::uint32_t checksumOf(std::string_view bytes) {
    std::uint32_t sum = ~0U;
    for (const char byte : bytes) {
        sum ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~sum;
}

std::uint32_t lengthAt(std::string_view bytes, std::size_t at) {
    std::uint32_t length = 0;
    for (std::size_t i = 0; i < 4; ++i) length = length << 8 | static_cast<std::uint8_t>(bytes[at + i]);
    return length;
}

/// Gives each chunk the checksum that belongs to it: otherwise the reader would look no further.
void signChunks(std::string& file) {
    constexpr std::size_t kFrame = 12;  // length, name, checksum
    std::size_t at = kPngSignature.size();
    while (file.size() >= at + kFrame && lengthAt(file, at) <= file.size() - at - kFrame) {
        const std::size_t length = lengthAt(file, at);
        const std::uint32_t sum = checksumOf(std::string_view(file).substr(at + 4, length + 4));
        for (std::size_t i = 0; i < 4; ++i) file[at + 8 + length + i] = static_cast<char>(sum >> (24 - 8 * i));
        at += kFrame + length;
    }
}

unsigned complaints = 0;  // of Qt's; it is muted while it reads, and so would be whoever ended the process here

void hear(QtMsgType, const QMessageLogContext&, const QString&) { ++complaints; }

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    qInstallMessageHandler(hear);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const lumo::fuzz::TemporaryFolder folder;
    std::string file(lumo::fuzz::textOf(data, size));
    if (file.starts_with(kPngSignature)) signChunks(file);
    const std::string path = folder.write("a.png", file);
    const QImage picture = lumo::decodedImage(lumo::imageFileBytes(path));
    expect(complaints == 0);
    if (picture.isNull()) return 0;
    expect(picture.format() == QImage::Format_ARGB32_Premultiplied);
    expect(picture.width() > 0 && picture.height() > 0 && picture.sizeInBytes() <= kMostBytes);
    return 0;
}
