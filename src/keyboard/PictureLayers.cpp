#include "keyboard/PictureLayers.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "controls/Theme.h"
#include "keyboard/KeyLegend.h"
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

PictureLayers::PictureLayers(const DeviceGrid& grid, const std::vector<KeyCap>& keys, const QImage& picture)
    : m_keys(keys),
      m_grid(grid),
      m_touchedCaps(keys.size()),
      m_rings(keys.size()),
      m_isMarked(keys.size()),
      m_glow([&] {
          for (const KeyCap& key : keys) m_caps.push_back(makeCap(key, {}));
          return makeGlow(picture);
      }()),
      m_frame(m_glow.ground()) {}

PictureLayers::Cap PictureLayers::makeCap(const KeyCap& key, const KeyTouch& touch) {
    const QRectF rect = m_grid.toPixels().mapRect(rectOf(key));
    const QPoint corner = m_grid.pixelsAround(capBounds(rectOf(key))).topLeft();
    const QRectF face = faceOf(rectOf(key), touch.press);
    const auto drawn =
        sprite(rect.translated(-corner), {isModifier(key), touch.hover, touch.press, legendRise(key, face)});
    const KeyLegend legend = legendOf(key, face);
    return {drawn, corner, LegendMask(legend.main, m_grid), LegendMask(legend.fn, m_grid)};
}

std::shared_ptr<const KeycapSprite> PictureLayers::sprite(const QRectF& inPixel, const KeycapLook& look) {
    const auto draw = [&] { return std::make_shared<const KeycapSprite>(inPixel, m_grid.scale, look); };
    if (look.hover > 0.0 || look.press > 0.0) return draw();
    auto& known =
        m_sprites[{inPixel.width(), inPixel.height(), look.isModifier, look.legendRise, inPixel.x(), inPixel.y()}];
    if (!known) known = draw();
    return known;
}

std::vector<CapCover> PictureLayers::covers() const {
    const BlockArea all = m_grid.blocks();
    std::vector<CapCover> covers(static_cast<std::size_t>(all.width() * all.height()), CapCover::none);
    for (const Cap& cap : m_caps) {
        const QRect rect = cap.rect().intersected(all.pixels());
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            const auto opaque = cap.sprite->opaque(y - cap.corner.y());
            for (int x = rect.left() / kBlockPixels * kBlockPixels; x <= rect.right(); x += kBlockPixels) {
                const int from = x - cap.corner.x();
                const bool isWhole = from >= opaque.first && from + kBlockPixels <= opaque.end;
                CapCover& cover = *(covers.begin() + y * all.width() + x / kBlockPixels);
                cover = std::max(cover, isWhole ? CapCover::whole : CapCover::partly);
            }
        }
    }
    return covers;
}

GlowPass PictureLayers::makeGlow(const QImage& picture) const {
    return {m_grid, onWindow(drawCase(m_grid, picture)), drawLightMask(m_grid), covers()};
}

void PictureLayers::setTouch(std::size_t key, const KeyTouch& touch) {
    m_touchedCaps[key].reset();
    if (!isAtRest(touch)) m_touchedCaps[key] = makeCap(m_keys[key], touch);
    const RingLook ring{touch.isSelected, touch.isFocused, touch.hover};
    m_rings[key].reset();
    if (ring.isVisible()) m_rings[key].emplace(rectOf(m_keys[key]), ring, m_grid);
    m_isMarked[key] = touch.isSelected || touch.isFocused;
}

void PictureLayers::composeAll(std::span<const KeyShade> shades, GlowField& field) {
    const BlockArea all = m_grid.blocks();
    for (int top = 0; top < all.bottom; top += kBandRows) {
        compose({0, top, all.right, std::min(top + kBandRows, all.bottom)}, shades, field);
    }
}

void PictureLayers::composeKey(std::size_t key, std::span<const KeyShade> shades, GlowField& field) {
    compose(m_grid.blocksAround(ringBounds(rectOf(m_keys[key]))), shades, field);
}

void PictureLayers::compose(const BlockArea& area, std::span<const KeyShade> shades, GlowField& field) {
    pixels::clearWideRegisters();
    m_glow.paint(FrameView(m_frame), area, field);
    for (std::size_t key = 0; key < m_caps.size(); ++key) {
        paintCap(m_touchedCaps[key] ? *m_touchedCaps[key] : m_caps[key], area, shades[key]);
    }
    paintRings(area);
}

void PictureLayers::paintCap(const Cap& cap, const BlockArea& area, const KeyShade& shade) {
    const FrameView frame(m_frame);
    const QRect shown = cap.rect().intersected(area.pixels()).intersected(m_frame.rect());
    if (shown.isEmpty()) return;
    const LegendColors colors = legendColors(shade);
    cap.sprite->paint(frame.part(cap.corner, shown), shade);
    cap.legend.paint(frame, area, colors.main);
    cap.fnLegend.paint(frame, area, colors.fn);
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
