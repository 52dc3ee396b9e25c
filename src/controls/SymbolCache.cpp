#include "controls/SymbolCache.h"

#include <QPainter>
#include <utility>

namespace lumo {
namespace {

QImage inColor(QImage shape, const QColor& tint) {
    if (shape.isNull()) return shape;
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(shape.rect(), tint);
    painter.end();
    return shape;
}

/// The cached picture, made first where it is missing.
template <typename Key, typename Make>
QImage cached(QCache<Key, QImage>& cache, const Key& key, const Make& make) {
    if (const QImage* const known = cache.object(key)) return *known;
    QImage made = make();
    // That there is nothing is worth keeping, too.
    cache.insert(key, new QImage(made), SymbolCache::kEntryBytes + made.sizeInBytes());
    return made;
}

}  // namespace

SymbolCache::SymbolCache(Draw draw, qsizetype largestBytes)
    : m_draw(std::move(draw)), m_shapes(largestBytes), m_tinted(largestBytes / 2) {}

QImage SymbolCache::tinted(const QString& name, QSize pixels, const QColor& tint) {
    if (pixels.isEmpty()) return {};
    return cached(m_tinted, Key{name, pixels, tint.rgba()}, [&] { return inColor(shape(name, pixels), tint); });
}

QImage SymbolCache::shape(const QString& name, QSize pixels) {
    return cached(m_shapes, Key{name, pixels}, [&] { return m_draw(name, pixels); });
}

}  // namespace lumo
