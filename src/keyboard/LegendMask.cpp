#include "keyboard/LegendMask.h"

#include <QImage>
#include <QPainter>

namespace lumo {

LegendMask::LegendMask(const QPainterPath& letters, const DeviceGrid& grid)
    : m_area(grid.blocksAround(letters.boundingRect())) {
    if (m_area.isEmpty()) return;
    QImage image(m_area.width() * pixels::kBlockPixels, m_area.height(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(grid.toPixels() * QTransform::fromTranslate(-m_area.left * pixels::kBlockPixels, -m_area.top));
    painter.fillPath(letters, Qt::white);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            m_shares.insert(m_shares.end(), 4, static_cast<std::uint8_t>((qAlpha(row[x]) * 128 + 127) / 255));
        }
    }
}

void LegendMask::paint(const FrameView& frame, const BlockArea& area, ColorBytes color) const {
    const BlockArea shown = m_area.intersected(area);
    if (shown.isEmpty()) return;
    pixels::blendColor(frame.part(m_area, shown), m_shares.data(), static_cast<std::size_t>(m_area.width()),
                       {color.b, color.g, color.r, 255});
}

}  // namespace lumo
