#include "app/ImageFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <mutex>
#include <optional>
#include <span>
#include <utility>

#include "app/PngChunks.h"

namespace lumo {
namespace {

constexpr int kLargestPictureMiB = 64;  // ours are 4 at most; a few bytes of a file can claim any size
constexpr qint64 kLargestFile = kLargestPictureMiB * 1024 * 1024;

// To us a damaged picture is as good as none, whatever the readers think of it.

/// What Qt has to say.
class MutedMessages final {
public:
    MutedMessages() = default;
    MutedMessages(const MutedMessages&) = delete;
    MutedMessages& operator=(const MutedMessages&) = delete;
    ~MutedMessages() { qInstallMessageHandler(m_before); }

private:
    static void drop(QtMsgType, const QMessageLogContext&, const QString&) {}

    QtMessageHandler m_before = qInstallMessageHandler(drop);
};

/// What libpng has to say: Qt takes over its warnings but not its errors, which go straight to the standard stream.
/// That is the whole process's, but lines of ours are written to the other one.
class MutedErrorStream final {
public:
    MutedErrorStream() {
        const int nothing = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (m_before >= 0 && nothing >= 0) ::dup2(nothing, STDERR_FILENO);
        if (nothing >= 0) ::close(nothing);
    }
    MutedErrorStream(const MutedErrorStream&) = delete;
    MutedErrorStream& operator=(const MutedErrorStream&) = delete;
    ~MutedErrorStream() {
        if (m_before < 0) return;
        ::dup2(m_before, STDERR_FILENO);
        ::close(m_before);
    }

private:
    const int m_before = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
};

/// For the length of one file; of files that are read at the same time, until the last one is.
class Silence final {
public:
    Silence() {
        const std::lock_guard lock(s_mutex);
        if (s_readers++ == 0) s_muted.emplace();
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() {
        const std::lock_guard lock(s_mutex);
        if (--s_readers == 0) s_muted.reset();
    }

private:
    struct Muted {
        MutedMessages messages;
        MutedErrorStream errors;
    };

    static inline std::mutex s_mutex;
    static inline int s_readers = 0;
    static inline std::optional<Muted> s_muted;
};

QImage read(QByteArray& bytes) {
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    // Asked what a file is, Qt loads its readers of every other form as well, which takes longer than an icon does.
    if (bytes.startsWith("\x89PNG")) {
        reader.setAutoDetectImageFormat(false);
        reader.setFormat("png");
    }
    return reader.read();
}

/// The form that is painted without being converted every time. In place, since nobody else has the image yet, and here
/// on this thread: Qt would wake others for it, which take the processors from the main one.
QImage premultiplied(QImage image) {
    const auto width = static_cast<std::size_t>(image.width());
    for (int y = 0; y < image.height(); ++y) {
        for (QRgb& pixel : std::span(reinterpret_cast<QRgb*>(image.scanLine(y)), width)) {
            if (qAlpha(pixel) != 0xFF) pixel = qPremultiply(pixel);  // most are opaque
        }
    }
    image.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
    return image;
}

/// The whole process's.
void limitAllocation() {
    static const bool isLimited = (QImageReader::setAllocationLimit(kLargestPictureMiB), true);
    static_cast<void>(isLimited);
}

}  // namespace

// The bytes are looked over before the readers see them.
QByteArray imageFileBytes(const std::string& path) {
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestFile) return {};
    QByteArray bytes = file.readAll();
    bytes.squeeze();  // it may be kept
    const bool isTrap = claimsMorePngThanThereIs({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return isTrap ? QByteArray() : bytes;
}

QImage decodedImage(QByteArray bytes) {
    if (bytes.isEmpty()) return {};
    const Silence silence;
    limitAllocation();
    QImage image = read(bytes);
    if (image.format() == QImage::Format_ARGB32) return premultiplied(std::move(image));
    return image.isNull() ? image : std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}  // namespace lumo
