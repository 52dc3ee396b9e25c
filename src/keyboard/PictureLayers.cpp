#include "keyboard/PictureLayers.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "controls/Theme.h"
#include "keyboard/KeyboardCase.h"
#include "keyboard/WideRegisters.h"

namespace lumo {
namespace {

using pixels::kBlockPixels;

constexpr int kBandRows = 64;  // what one pass leaves in the processor's cache for the next

QImage wholeBlocks(const DeviceGrid& grid, QImage::Format format) {
    const BlockArea blocks = grid.blocks();
    return {blocks.width() * kBlockPixels, blocks.height(), format};
}

QImage drawCase(const DeviceGrid& grid, const QImage& picture) {
    QImage image = wholeBlocks(grid, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setTransform(grid.toPixels());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (picture.isNull()) {
        paintKeyboardCase(painter);
    } else {
        painter.drawImage(QRectF(QPointF(), kPictureSize), picture);
    }
    return image;
}

QImage onWindow(const QImage& caseImage) {
    QImage ground(caseImage.size(), QImage::Format_RGB32);
    ground.fill(theme::kWindow);
    QPainter(&ground).drawImage(0, 0, caseImage);
    return ground;
}

/// The plate takes the light of the keys, and so does the desk around the case, also where the case shades it.
QImage drawLightMask(const DeviceGrid& grid) {
    QImage mask = wholeBlocks(grid, QImage::Format_Grayscale8);
    mask.fill(Qt::white);
    QPainter painter(&mask);
    painter.setTransform(grid.toPixels());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(casePath(), Qt::black);
    painter.fillPath(wellPath(), Qt::white);
    return mask;
}

bool isAtRest(const KeyTouch& touch) { return touch.hover <= 0.0 && touch.press <= 0.0; }

}  // namespace

PictureLayers::PictureLayers(DrawnKeys drawn, const std::vector<KeyCap>& keys, const QImage& picture)
    : m_keys(keys),
      m_drawn(std::move(drawn)),
      m_touchedCaps(keys.size()),
      m_rings(keys.size()),
      m_isMarked(keys.size()),
      m_glow(makeGlow(picture)),
      m_frame(m_glow.ground()) {}

std::vector<CapCover> PictureLayers::covers() const {
    const BlockArea all = m_drawn.grid.blocks();
    std::vector<CapCover> covers(static_cast<std::size_t>(all.width() * all.height()), CapCover::none);
    for (const DrawnCap& cap : m_drawn.caps) {
        const QRect rect = cap.rect().intersected(all.pixels());
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            const auto opaque = cap.opaque(y - cap.rect().y());
            for (int x = rect.left() / kBlockPixels * kBlockPixels; x <= rect.right(); x += kBlockPixels) {
                const int from = x - cap.rect().x();
                const bool isWhole = from >= opaque.first && from + kBlockPixels <= opaque.end;
                CapCover& cover = *(covers.begin() + y * all.width() + x / kBlockPixels);
                cover = std::max(cover, isWhole ? CapCover::whole : CapCover::partly);
            }
        }
    }
    return covers;
}

GlowPass PictureLayers::makeGlow(const QImage& picture) const {
    return {m_drawn.grid, onWindow(drawCase(m_drawn.grid, picture)), drawLightMask(m_drawn.grid), covers()};
}

void PictureLayers::setTouch(std::size_t key, const KeyTouch& touch) {
    m_touchedCaps[key].reset();
    if (!isAtRest(touch)) m_touchedCaps[key].emplace(m_keys[key], touch, m_drawn.grid, m_drawn.sprites);
    const RingLook ring{touch.isSelected, touch.isFocused, touch.hover};
    m_rings[key].reset();
    if (ring.isVisible()) m_rings[key].emplace(rectOf(m_keys[key]), ring, m_drawn.grid);
    m_isMarked[key] = touch.isSelected || touch.isFocused;
}

void PictureLayers::composeAll(std::span<const KeyShade> shades, GlowField& field) {
    const BlockArea all = m_drawn.grid.blocks();
    for (int top = 0; top < all.bottom; top += kBandRows) {
        compose({0, top, all.right, std::min(top + kBandRows, all.bottom)}, shades, field);
    }
}

void PictureLayers::composeKey(std::size_t key, std::span<const KeyShade> shades, GlowField& field) {
    compose(m_drawn.grid.blocksAround(ringBounds(rectOf(m_keys[key]))), shades, field);
}

void PictureLayers::compose(const BlockArea& area, std::span<const KeyShade> shades, GlowField& field) {
    pixels::clearWideRegisters();
    const FrameView frame(m_frame);
    m_glow.paint(frame, area, field);
    for (std::size_t key = 0; key < m_drawn.caps.size(); ++key) {
        const DrawnCap& cap = m_touchedCaps[key] ? *m_touchedCaps[key] : m_drawn.caps[key];
        cap.paint(frame, area, shades[key]);
    }
    paintRings(area);
}

void PictureLayers::paintRings(const BlockArea& area) {
    const FrameView frame(m_frame);
    for (const bool marked : {false, true}) {
        for (std::size_t key = 0; key < m_rings.size(); ++key) {
            if (m_rings[key] && m_isMarked[key] == marked) m_rings[key]->paint(frame, area);
        }
    }
}

}  // namespace lumo
