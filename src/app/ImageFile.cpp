#include "app/ImageFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QImageReader>

#include "app/PngChunks.h"

namespace lumo {
namespace {

constexpr int kLargestPictureMiB = 64;  // ours are 4 at most; a few bytes of a file can claim any size
constexpr qint64 kLargestFile = kLargestPictureMiB * 1024 * 1024;

// Both for the length of one file: to us a damaged picture is as good as none, whatever the readers think of it.

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

/// The bytes are looked over before the readers see them.
bool isWorthReading(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestFile) return false;
    const QByteArray bytes = file.readAll();
    return !claimsMorePngThanThereIs({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace

QImage loadImageFile(const std::string& path) {
    const QString name = QFile::decodeName(path.c_str());
    if (!isWorthReading(name)) return {};
    const MutedMessages mutedMessages;
    const MutedErrorStream mutedErrors;
    QImageReader::setAllocationLimit(kLargestPictureMiB);
    QImageReader reader(name);
    const QImage read = reader.read();
    // The form that is painted without being converted every time.
    return read.isNull() ? read : read.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}  // namespace lumo
