// Keeps symbols as they were painted last, so that a repaint neither reads a drawing nor fills a colour.
#pragma once

#include <QCache>
#include <QColor>
#include <QImage>
#include <QString>
#include <functional>

namespace lumo {

/// Main thread. Forgets what was painted longest ago once it holds too many bytes.
class SymbolCache final {
public:
    /// Draws a symbol's shape in any colour at that size in pixels; null when there is no symbol of that name.
    using Draw = std::function<QImage(const QString& name, QSize pixels)>;

    static constexpr qsizetype kLargestBytes = qsizetype{256} << 10;  // a frame of 48 points at scale 2 is 36 KiB
    static constexpr qsizetype kEntryBytes = 400;  // what it takes to keep a picture, beside its pixels

    /// So many bytes for shapes, and half as many for what is tinted, which costs less to make.
    explicit SymbolCache(Draw draw, qsizetype largestBytes = kLargestBytes);

    /// The shape in that one colour; null when there is none, or no room to paint it in.
    [[nodiscard]] QImage tinted(const QString& name, QSize pixels, const QColor& tint);

private:
    struct Key {
        QString name;
        QSize pixels;  // points times scale
        QRgb tint = 0;
        bool operator==(const Key&) const = default;
    };
    friend size_t qHash(const Key& key, size_t seed) {
        return qHashMulti(seed, key.name, key.pixels.width(), key.pixels.height(), key.tint);
    }
    [[nodiscard]] QImage shape(const QString& name, QSize pixels);

    Draw m_draw;
    // Apart from each other: a colour that fades goes through many tints, and needs one shape for all of them.
    QCache<Key, QImage> m_shapes;
    QCache<Key, QImage> m_tinted;
};

}  // namespace lumo
