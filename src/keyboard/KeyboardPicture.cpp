#include "keyboard/KeyboardPicture.h"

#include <QPainter>
#include <algorithm>
#include <cassert>
#include <utility>

#include "foundation/MakeAhead.h"
#include "keyboard/KeyRing.h"
#include "keyboard/PictureLayers.h"

namespace lumo {
namespace {

constexpr QRect kWholePicture{0, 0, static_cast<int>(kPictureSize.width()), static_cast<int>(kPictureSize.height())};

}  // namespace

KeyboardPicture::KeyboardPicture(std::vector<KeyCap> keys, PictureSource picture)
    : m_keys(std::move(keys)), m_picture(std::move(picture)), m_shades(m_keys.size()), m_touches(m_keys.size()) {
    m_touched.reserve(m_keys.size());
}

KeyboardPicture::~KeyboardPicture() { finishMakingAhead(); }

void KeyboardPicture::drawAhead(double scale) {
    m_ahead = makeAhead([keys = m_keys, grid = DeviceGrid{scale, {}}] { return Ahead(keys, grid); });
}

QRect KeyboardPicture::compose(std::span<const KeyLook> looks) {
    assert(looks.size() == m_keys.size());
    const bool isLightChanged = takeLights(looks);
    const QRect touched = takeTouches(looks);
    const bool isNew = std::exchange(m_isNew, false);
    if (m_layers && isLightChanged) {
        m_field->update(m_shades);
        m_layers->composeAll(m_shades, *m_field);
    } else if (m_layers) {
        for (const std::size_t key : m_touched) m_layers->composeKey(key, m_shades, *m_field);
    }
    if (isNew || isLightChanged) return kWholePicture;
    return touched;
}

bool KeyboardPicture::takeLights(std::span<const KeyLook> looks) {
    bool isChanged = false;
    for (std::size_t key = 0; key < m_keys.size(); ++key) {
        const KeyShade shade = shadeOf(looks[key].light);
        isChanged = isChanged || shade != m_shades[key];
        m_shades[key] = shade;
    }
    return isChanged;
}

QRect KeyboardPicture::takeTouches(std::span<const KeyLook> looks) {
    QRect touched;
    m_touched.clear();
    for (std::size_t key = 0; key < m_keys.size(); ++key) {
        const KeyTouch touch = touchOf(looks[key]);
        if (touch == m_touches[key]) continue;
        m_touches[key] = touch;
        m_touched.push_back(key);
        if (m_layers) m_layers->setTouch(key, touch);
        touched |= ringBounds(rectOf(m_keys[key])).toAlignedRect();
    }
    return touched;
}

void KeyboardPicture::makeLayers(const DeviceGrid& grid) {
    m_layers = std::make_unique<PictureLayers>(drawKeys(grid), m_keys, m_picture());
    for (std::size_t key = 0; key < m_keys.size(); ++key) {
        if (m_touches[key] != KeyTouch{}) m_layers->setTouch(key, m_touches[key]);
    }
    m_field->update(m_shades);
    m_layers->composeAll(m_shades, *m_field);
}

DrawnKeys KeyboardPicture::drawKeys(const DeviceGrid& grid) {
    if (m_ahead.valid()) {
        Ahead ahead = m_ahead.get();
        m_field = std::move(ahead.field);
        if (ahead.keys.grid == grid) return std::move(ahead.keys);
    }
    if (!m_field) m_field.emplace(m_keys);
    return {m_keys, grid};
}

void KeyboardPicture::paint(QPainter& painter, const QPointF& origin, const QRect& dirty) {
    const DevicePlace place = placeOnDevice(painter.deviceTransform(), origin);
    if (!m_layers || m_layers->grid() != place.grid) makeLayers(place.grid);
    paintPixels(painter, place, m_layers->frame(), place.grid.pixelsAround(dirty));
}

}  // namespace lumo
