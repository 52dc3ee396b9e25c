#include "keyboard/GlowWeights.h"

#include <QImage>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <numeric>

#include "keyboard/DeviceGrid.h"
#include "keyboard/KeycapRecipe.h"

namespace lumo {
namespace {

constexpr double kEmitterOut = 1.5;  // points beyond the cap
constexpr double kEmitterRadius = 7.5;

/// Grey values of a small picture, blurred by boxes along both axes.
class Blurred final {
public:
    explicit Blurred(const QImage& mask)
        : m_width(mask.width()), m_height(mask.height()), m_values(static_cast<std::size_t>(m_width * m_height)) {
        for (int y = 0; y < m_height; ++y) {
            const auto* const row = reinterpret_cast<const QRgb*>(mask.constScanLine(y));
            for (int x = 0; x < m_width; ++x) at(x, y) = static_cast<float>(qAlpha(row[x])) / 255.0F;
        }
    }

    void blur(int radius) {
        for (int y = 0; y < m_height; ++y) blurLine(&at(0, y), 1, m_width, radius);
        for (int x = 0; x < m_width; ++x) blurLine(&at(x, 0), m_width, m_height, radius);
    }

    [[nodiscard]] float& at(int x, int y) { return *(m_values.data() + y * m_width + x); }

private:
    void blurLine(float* first, int step, int count, int radius) {
        const int length = count + 2 * radius + 1;
        m_line.assign(static_cast<std::size_t>(length), 0.0F);
        for (int i = 0; i < count; ++i) *(m_line.begin() + i + radius + 1) = first[i * step];
        std::partial_sum(m_line.begin(), m_line.end(), m_line.begin());
        const int width = 2 * radius + 1;
        const float* const sums = m_line.data();
        for (int i = 0; i < count; ++i) first[i * step] = (sums[i + width] - sums[i]) / static_cast<float>(width);
    }

    int m_width;
    int m_height;
    std::vector<float> m_values;
    std::vector<float> m_line;
};

QImage drawEmitter(const QRectF& rect, const QSizeF& radii, QSize size) {
    QImage mask(size, QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(rect, radii.width(), radii.height());
    return mask;
}

QTransform toCells(const GlowLayer& layer) {
    const QPointF centre(kPictureSize.width() / 2.0, kPictureSize.height() / 2.0);
    QTransform transform = QTransform::fromScale(1.0 / layer.cell, 1.0 / layer.cell);
    transform.translate(centre.x(), centre.y() + layer.lowering);
    transform.scale(layer.widening, layer.heightening);
    return transform.translate(-centre.x(), -centre.y());
}

constexpr int upToEven(int number) { return number + number % 2; }

}  // namespace

GlowWeights::GlowWeights(const std::vector<KeyCap>& keys, const GlowLayer& layer, std::span<const QRect> shown,
                         int rows)
    : m_rows(static_cast<std::size_t>(rows)) {
    const QTransform transform = toCells(layer);
    const QSizeF radii(kEmitterRadius * transform.m11(), kEmitterRadius * transform.m22());
    const int reach = std::accumulate(layer.boxRadii.begin(), layer.boxRadii.end(), 0);
    for (std::size_t key = 0; key < keys.size(); ++key) {
        const QRectF emitter =
            transform.mapRect(rectOf(keys[key]).adjusted(-kEmitterOut, -kEmitterOut, kEmitterOut, kEmitterOut));
        const QRect cells = emitter.toAlignedRect().adjusted(-reach, -reach, reach, reach);
        for (const QRect& part : shown) {
            if (!cells.intersects(part)) continue;
            addStretches(key, table(emitter.translated(-cells.topLeft()), cells.size(), radii, layer), cells.topLeft(),
                         part);
        }
    }
    m_weights.shrink_to_fit();
}

const GlowWeights::Table& GlowWeights::table(const QRectF& emitter, QSize size, const QSizeF& radii,
                                             const GlowLayer& layer) {
    const auto [known, isNew] =
        m_tables.try_emplace({emitter.x(), emitter.y(), emitter.width(), emitter.height()}, Table{});
    if (isNew) known->second = addTable(emitter, size, radii, layer);
    return known->second;
}

GlowWeights::Table GlowWeights::addTable(const QRectF& emitter, QSize size, const QSizeF& radii,
                                         const GlowLayer& layer) {
    Blurred light(drawEmitter(emitter, radii, size));
    for (const int radius : layer.boxRadii) light.blur(radius);

    const int stride = upToEven(size.width()) + 2;
    const Table table{size, stride * static_cast<int>(pixels::kCellLanes), m_weights.size()};
    m_weights.resize(table.first + static_cast<std::size_t>(table.stride * size.height()));
    for (int y = 0; y < size.height(); ++y) {
        auto* const row = m_weights.data() + table.first + y * table.stride;
        for (int x = 0; x < size.width(); ++x) {
            const double share = std::max(static_cast<double>(light.at(x, y)), 0.0);
            std::fill_n(row + x * static_cast<int>(pixels::kCellLanes), pixels::kCellLanes,
                        static_cast<pixels::Share>(share * layer.strength * pixels::kWhole));
        }
    }
    return table;
}

void GlowWeights::addStretches(std::size_t key, const Table& table, QPoint corner, const QRect& shown) {
    const QRect lit = QRect(corner, table.size).intersected(shown);
    for (int row = lit.top(); row <= lit.bottom(); ++row) {
        const QPoint inTable = QPoint(lit.left(), row) - corner;
        const auto skipped = static_cast<std::size_t>(inTable.y() * table.stride) +
                             static_cast<std::size_t>(inTable.x()) * pixels::kCellLanes;
        m_rows[static_cast<std::size_t>(row)].push_back(
            {static_cast<std::uint16_t>(key), static_cast<std::uint16_t>(lit.left()),
             static_cast<std::uint16_t>(upToEven(lit.width())), static_cast<std::uint32_t>(table.first + skipped)});
    }
}

}  // namespace lumo
