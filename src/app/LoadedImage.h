// A picture in memory: a small one as it is painted, a large one as it was in its file.
#pragma once

#include <QByteArray>
#include <QImage>
#include <memory>
#include <optional>
#include <string>

namespace lumo {

/// One thread at a time.
class LoadedImage final {
public:
    /// None when the file holds no picture. Any thread.
    [[nodiscard]] static std::optional<LoadedImage> fromFile(const std::string& path);

    /// Those of a large picture go when nobody holds them any more, and are worked out anew for the next who asks: it
    /// is drawn once, at the size of its place, and its pixels would be most of what the program keeps in memory.
    [[nodiscard]] std::shared_ptr<const QImage> pixels();

private:
    LoadedImage(QByteArray file, QImage pixels);

    QByteArray m_file;                     // of a large one
    std::shared_ptr<const QImage> m_kept;  // of a small one; of a large one until it is asked for
    std::weak_ptr<const QImage> m_held;    // of a large one
};

}  // namespace lumo
