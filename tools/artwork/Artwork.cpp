#include "Artwork.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace lumo::artwork {
namespace {

// Where shapes meet, coverage is mixed once a shape, and the colours below shine through: drawn larger, it hardly does.
constexpr int kOversampling = 4;

}  // namespace

QString drawingOf(const Export& target) {
    constexpr std::string_view kEnding = ".png";
    const std::string_view stem = target.file.substr(0, target.file.size() - kEnding.size());
    return "svg/" + QString::fromUtf8(stem.data(), static_cast<qsizetype>(stem.size())) + ".svg";
}

QImage render(const QString& drawing, const Export& target) {
    QSvgRenderer renderer;
    if (!QFile::exists(drawing) || !renderer.load(drawing)) return {};
    const QSize size(target.width, target.height);
    QImage large(size * kOversampling, QImage::Format_ARGB32_Premultiplied);
    large.fill(Qt::transparent);
    QPainter painter(&large);
    renderer.render(&painter);
    painter.end();
    return large.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace lumo::artwork
