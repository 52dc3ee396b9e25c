#include "app/LoadedImage.h"

#include <utility>

#include "app/ImageFile.h"

namespace lumo {
namespace {

constexpr qsizetype kLargeBytes = 256 * 1024;  // an icon has a sixth of that at the most

}  // namespace

LoadedImage::LoadedImage(QByteArray file, QImage pixels)
    : m_file(pixels.sizeInBytes() < kLargeBytes ? QByteArray() : std::move(file)), m_pixels(std::move(pixels)) {}

std::optional<LoadedImage> LoadedImage::fromFile(const std::string& path) {
    QByteArray file = imageFileBytes(path);
    QImage pixels = decodedImage(file);
    if (pixels.isNull()) return std::nullopt;
    return LoadedImage(std::move(file), std::move(pixels));
}

QImage LoadedImage::pixels() {
    if (m_file.isEmpty()) return m_pixels;
    if (!m_pixels.isNull()) return std::exchange(m_pixels, {});
    return decodedImage(m_file);
}

}  // namespace lumo
