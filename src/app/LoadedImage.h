// A picture in memory: a small one as it is painted, a large one as it was in its file.
#pragma once

#include <QByteArray>
#include <QImage>
#include <optional>
#include <string>

namespace lumo {

/// One thread at a time.
class LoadedImage final {
public:
    /// None when the file holds no picture. Any thread.
    [[nodiscard]] static std::optional<LoadedImage> fromFile(const std::string& path);

    /// Those of a large picture are the caller's alone, and worked out anew for the next one: it is drawn once, at the
    /// size of its place, and its pixels would be most of what the program keeps in memory.
    [[nodiscard]] QImage pixels();

private:
    LoadedImage(QByteArray file, QImage pixels);

    QByteArray m_file;  // of a large one
    QImage m_pixels;    // of a small one; of a large one until it is asked for
};

}  // namespace lumo
