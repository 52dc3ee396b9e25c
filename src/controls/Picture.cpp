#include "controls/Picture.h"

#include <QCache>

namespace lumo {
namespace {

struct Key {
    qint64 picture = 0;
    QSize pixels;
    bool operator==(const Key&) const = default;
};
size_t qHash(const Key& key, size_t seed) {
    return qHashMulti(seed, key.picture, key.pixels.width(), key.pixels.height());
}

constexpr qsizetype kMostPictures = 32;

const QImage& scaled(const QImage& picture, QSize pixels) {
    static QCache<Key, QImage> cache(kMostPictures);
    const Key key{picture.cacheKey(), pixels};
    if (!cache.contains(key)) {
        cache.insert(key, new QImage(picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    }
    return *cache.object(key);
}

}  // namespace

void paintPicture(QPainter& painter, const QRectF& frame, const QImage& picture) {
    const QSize pixels = (frame.size() * painter.device()->devicePixelRatioF()).toSize();
    if (picture.isNull() || pixels.isEmpty()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(frame, scaled(picture, pixels));
}

}  // namespace lumo
