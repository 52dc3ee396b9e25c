#include "app/LoadedImage.h"

#include <utility>

#include "app/ImageFile.h"

namespace lumo {
namespace {

constexpr qsizetype kLargeBytes = 256 * 1024;  // an icon has a sixth of that at the most

}  // namespace

LoadedImage::LoadedImage(QByteArray file, QImage pixels)
    : m_file(pixels.sizeInBytes() < kLargeBytes ? QByteArray() : std::move(file)),
      m_kept(std::make_shared<const QImage>(std::move(pixels))) {}

std::optional<LoadedImage> LoadedImage::fromFile(const std::string& path) {
    QByteArray file = imageFileBytes(path);
    QImage pixels = decodedImage(file);
    if (pixels.isNull()) return std::nullopt;
    return LoadedImage(std::move(file), std::move(pixels));
}

std::shared_ptr<const QImage> LoadedImage::pixels() {
    if (m_file.isEmpty()) return m_kept;
    std::shared_ptr<const QImage> pixels = m_kept ? std::exchange(m_kept, nullptr) : m_held.lock();
    if (!pixels) pixels = std::make_shared<const QImage>(decodedImage(m_file));
    m_held = pixels;
    return pixels;
}

}  // namespace lumo
