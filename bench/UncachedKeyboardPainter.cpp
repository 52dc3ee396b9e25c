#include "UncachedKeyboardPainter.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <array>
#include <cmath>

#include "controls/Lettering.h"
#include "controls/Theme.h"

namespace lumo::bench {
namespace {

const QRectF kPicture(0, 0, 650, 247);

QColor mix(const QColor& from, const QColor& to, double share) {
    return QColor::fromRgbF(static_cast<float>(std::lerp(from.redF(), to.redF(), share)),
                            static_cast<float>(std::lerp(from.greenF(), to.greenF(), share)),
                            static_cast<float>(std::lerp(from.blueF(), to.blueF(), share)));
}

QColor faded(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor colorOf(const KeyLight& light) {
    return QColor::fromRgbF(static_cast<float>(light.color.red), static_cast<float>(light.color.green),
                            static_cast<float>(light.color.blue));
}

double luminance(const QColor& color) {
    const auto linear = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor legendColor(const KeyLight& light) {
    const QColor color = colorOf(light);
    const QColor lit = mix(color, Qt::white, 0.30 + 0.35 * (1.0 - luminance(color)));
    return mix(QColor(0xB0, 0xB1, 0xB8), lit, std::min(1.0, 1.15 * light.glowOpacity));
}

bool isDarkCap(const KeyCap& key) {
    static const std::vector<std::string> kDark{"Esc",  "Tab",  "CapsLock", "LShift", "RShift", "LCtrl",     "RCtrl",
                                                "LWin", "LAlt", "RAlt",     "FN",     "Enter",  "Backspace", "Delete",
                                                "PgUp", "PgDn", "Up",       "Down",   "Left",   "Right"};
    return std::ranges::find(kDark, key.label) != kDark.end();
}

/// One running sum a channel, so that the width of the box costs nothing.
void blurLine(const QRgb* from, QRgb* to, qsizetype step, int count, int radius) {
    std::array<int, 4> sums{};
    const auto add = [&](int i, int sign) {
        if (i < 0 || i >= count) return;
        const QRgb pixel = from[i * step];
        sums[0] += sign * qAlpha(pixel);
        sums[1] += sign * qRed(pixel);
        sums[2] += sign * qGreen(pixel);
        sums[3] += sign * qBlue(pixel);
    };
    const int width = 2 * radius + 1;
    for (int i = -radius; i < radius; ++i) add(i, 1);
    for (int i = 0; i < count; ++i) {
        add(i + radius, 1);
        const auto mean = [&](std::size_t channel) { return (sums[channel] + width / 2) / width; };
        to[i * step] = qRgba(mean(1), mean(2), mean(3), mean(0));
        add(i - radius, -1);
    }
}

void boxBlur(QImage& image, int radius) {
    QImage between(image.size(), image.format());
    const qsizetype row = image.bytesPerLine() / 4;
    auto* const pixels = reinterpret_cast<QRgb*>(image.bits());
    auto* const other = reinterpret_cast<QRgb*>(between.bits());
    for (int y = 0; y < image.height(); ++y) blurLine(pixels + y * row, other + y * row, 1, image.width(), radius);
    for (int x = 0; x < image.width(); ++x) blurLine(other + x, pixels + x, row, image.height(), radius);
}

/// What shines below the keys, in a small picture.
QImage emitters(std::span<const KeyCap> keys, std::span<const KeyLook> looks, QSize size, double scale,
                const std::array<int, 3>& radii) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const KeyLight& light = looks[i].light;
        if (light.glowOpacity <= 0.0) continue;
        painter.setBrush(faded(mix(colorOf(light), Qt::white, 0.06), light.glowOpacity));
        painter.drawRoundedRect(QRectF(keys[i].x - 1.5, keys[i].y - 1.5, keys[i].width + 3, keys[i].height + 3), 7.5,
                                7.5);
    }
    painter.end();
    for (const int radius : radii) boxBlur(image, radius);
    return image;
}

QPainterPath lightOpening() {
    QPainterPath well;
    well.addRoundedRect(QRectF(13, 23, 625, 203), 10, 10);
    QPainterPath block(QPointF(597, 20));
    block.lineTo(640, 20);
    block.lineTo(640, 66);
    block.lineTo(605, 66);
    block.arcTo(QRectF(597, 50, 16, 16), 270, -90);
    block.closeSubpath();
    return well - block;
}

void fill(QPainter& painter, const QRectF& rect, double radius, const QBrush& brush) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(rect, radius, radius);
}

void stroke(QPainter& painter, const QRectF& rect, double radius, const QPen& pen) {
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect, radius, radius);
}

QLinearGradient down(double top, double bottom, const QGradientStops& stops) {
    QLinearGradient gradient(0, top, 0, bottom);
    gradient.setStops(stops);
    return gradient;
}

void drawCentred(QPainter& painter, const QString& text, double size, double x, double baseline, const QColor& color) {
    const Lettering letters({size, 0, QFont::Medium});
    painter.fillPath(letters.outlines(text).translated(x - letters.widthOf(text) / 2, baseline), color);
}

void paintRings(QPainter& painter, const KeyCap& key, const KeyLook& look) {
    const QRectF r(key.x, key.y, key.width, key.height);
    if (look.hover > 0) stroke(painter, r.adjusted(.5, .5, -.5, -.5), 5.5, {faded(Qt::white, 0.5 * look.hover), 1});
    if (look.selected) {
        stroke(painter, r.adjusted(.6, .6, -.6, -.6), 5.4, {faded(Qt::black, 0.6), 1.2});
        stroke(painter, r.adjusted(-.9, -.9, .9, .9), 6.9, {Qt::white, 1.8});
    }
}

}  // namespace

UncachedKeyboardPainter::UncachedKeyboardPainter(std::vector<KeyCap> keys, QImage picture)
    : m_keys(std::move(keys)), m_picture(std::move(picture)) {}

void UncachedKeyboardPainter::paint(QPainter& painter, std::span<const KeyLook> looks) const {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(kPicture, theme::kWindow);
    painter.drawImage(kPicture, m_picture);
    paintSpill(painter, looks);
    paintLight(painter, looks);
    for (std::size_t i = 0; i < m_keys.size(); ++i) paintKey(painter, m_keys[i], looks[i]);
    for (const bool selected : {false, true}) {
        for (std::size_t i = 0; i < m_keys.size(); ++i) {
            if (looks[i].selected == selected) paintRings(painter, m_keys[i], looks[i]);
        }
    }
}

void UncachedKeyboardPainter::paintSpill(QPainter& painter, std::span<const KeyLook> looks) const {
    const QImage spill = emitters(m_keys, looks, {163, 62}, 0.25, {1, 1, 2});
    QPainterPath desk;
    desk.addRect(kPicture);
    QPainterPath body;
    body.addRoundedRect(QRectF(5, 13, 641, 223), 16, 16);
    painter.save();
    painter.setClipPath(desk - body);
    painter.setOpacity(0.16);
    painter.translate(kPicture.center() + QPointF(0, 5));
    painter.scale(1.035, 1.10);
    painter.translate(-kPicture.center());
    painter.drawImage(QRectF(0, 0, 652, 248), spill);
    painter.restore();
}

void UncachedKeyboardPainter::paintLight(QPainter& painter, std::span<const KeyLook> looks) const {
    painter.save();
    painter.setClipPath(lightOpening());
    painter.setOpacity(0.38);
    painter.drawImage(QRectF(0, 0, 652, 248), emitters(m_keys, looks, {163, 62}, 0.25, {3, 3, 3}));
    painter.setOpacity(0.74);
    painter.drawImage(QRectF(0, 0, 650, 248), emitters(m_keys, looks, {325, 124}, 0.5, {1, 1, 2}));
    painter.restore();
}

void UncachedKeyboardPainter::paintKey(QPainter& painter, const KeyCap& key, const KeyLook& look) const {
    paintCap(painter, key, look);
    paintLegend(painter, key, look);
}

void UncachedKeyboardPainter::paintCap(QPainter& painter, const KeyCap& key, const KeyLook& look) const {
    const double x = key.x;
    const double y = key.y;
    const double w = key.width;
    const double h = key.height;
    const double down1 = y + look.press;  // the face moves, the skirt does not
    const QColor color = colorOf(look.light);
    const double g = look.light.glowOpacity;
    const bool dark = isDarkCap(key);
    const QGradientStops skirt{{0, dark ? 0x26272B : 0x2E2F34}, {1, dark ? 0x17181A : 0x1C1D20}};
    const QGradientStops face{{0, dark ? 0x2F3036 : 0x3B3C43}, {1, dark ? 0x26272B : 0x303137}};
    const QGradientStops edge{{0, faded(Qt::white, 0.15)}, {0.35, faded(Qt::white, 0.03)}, {1, faded(Qt::white, 0.05)}};

    fill(painter, {x - 0.5, y + 0.5, w + 1, h + 1}, 6.5, faded(Qt::black, 0.45));
    fill(painter, {x, y, w, h}, 6, down(y, y + h, skirt));
    fill(painter, {x, y, w, h}, 6, faded(color, 0.17 * g));
    stroke(painter, {x + 0.5, y + 0.5, w - 1, h - 1}, 5.5, {faded(Qt::white, 0.05 + 0.05 * g), 1});
    fill(painter, {x + 2.75, down1 + 1.75, w - 5.5, h - 6.25}, 5.5, faded(Qt::black, 0.38));
    fill(painter, {x + 3.5, down1 + 2, w - 7, h - 8}, 5, down(down1 + 2, down1 + h - 6, face));
    fill(painter, {x + 3.5, down1 + 2, w - 7, h - 8}, 5, faded(color, 0.05 * g));
    if (look.hover > 0) fill(painter, {x + 3.5, down1 + 2, w - 7, h - 8}, 5, faded(Qt::white, 0.12 * look.hover));
    stroke(painter, {x + 4, down1 + 2.5, w - 8, h - 9}, 4.5, {down(down1 + 2, down1 + h - 6, edge), 1});
}

void UncachedKeyboardPainter::paintLegend(QPainter& painter, const KeyCap& key, const KeyLook& look) const {
    const QRectF face(key.x + 3.5, key.y + 2 + look.press, key.width - 7, key.height - 8);
    const QString text = QString::fromStdString(key.label);
    const bool isLong = text.size() > 3;
    const double size = text.size() == 1 ? 12.5 : !isLong ? 9.5 : text.size() >= 6 && key.width == 34 ? 8.1 : 8.6;
    const bool hasFn = !key.fnLabel.empty();
    const double baseline = hasFn ? face.top() + 12.2 : face.center().y() + 0.36 * size;
    const double legendMiddle = baseline - 0.36 * size;
    if (look.light.glowOpacity > 0.15) {
        const QPointF behind(face.center().x(), legendMiddle);
        QRadialGradient halo(behind, 11);
        halo.setColorAt(0, faded(colorOf(look.light), 0.22 * look.light.glowOpacity));
        halo.setColorAt(1, faded(colorOf(look.light), 0));
        painter.setPen(Qt::NoPen);
        painter.setBrush(halo);
        painter.drawEllipse(behind, 11, 11);
    }
    const QColor color = legendColor(look.light);
    const double middle = face.center().x();
    drawCentred(painter, text, size, middle, baseline, color);
    if (!hasFn) return;
    drawCentred(painter, QString::fromStdString(key.fnLabel), 7.4, middle, face.bottom() - 3.2,
                mix(QColor(0x9E, 0x9F, 0xA6), color, 0.55));
}

}  // namespace lumo::bench
