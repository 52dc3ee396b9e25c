#include "keyboard/KeyMiniature.h"

#include <QPainter>
#include <algorithm>

#include "controls/Theme.h"
#include "keyboard/DrawnCap.h"
#include "keyboard/WideRegisters.h"

namespace lumo {
namespace {

constexpr double kWidest = 76.0;
constexpr double kShadow = 2.0;  // on every side
constexpr double kGlow = 0.9;

bool looksTheSame(const KeyCap& one, const KeyCap& other) {
    return one.label == other.label && one.fnLabel == other.fnLabel && one.width == other.width &&
           one.height == other.height && one.customColor == other.customColor;
}

}  // namespace

KeyMiniature::KeyMiniature(QWidget* parent) : QWidget(parent) {}

void KeyMiniature::setKey(const KeyCap& key) {
    KeyCap here = key;
    here.x = kShadow;
    here.y = kShadow;
    here.width = std::min(key.width, kWidest);
    if (looksTheSame(here, m_key)) return;
    m_key = here;
    m_image = QImage();
    updateGeometry();
    update();
}

QSize KeyMiniature::sizeHint() const { return QSizeF(m_key.width + 2 * kShadow, m_key.height + 2 * kShadow).toSize(); }

QImage KeyMiniature::draw() const {
    const BlockArea area = m_grid.blocksAround(QRectF(QPointF(), sizeHint()));
    QImage image(area.right * pixels::kBlockPixels, area.bottom, QImage::Format_RGB32);
    image.fill(theme::kCard);
    CapSprites sprites;
    const DrawnCap cap(m_key, {}, m_grid, sprites);
    pixels::clearWideRegisters();
    cap.paint(FrameView(image), area, shadeOf({m_key.customColor.value_or(kDefaultColor), kGlow}));
    return image;
}

void KeyMiniature::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const DevicePlace place = placeOnDevice(painter.deviceTransform(), QPointF());
    if (m_image.isNull() || m_grid != place.grid) {
        m_grid = place.grid;
        m_image = draw();
    }
    paintPixels(painter, place, m_image, m_image.rect());
}

}  // namespace lumo
