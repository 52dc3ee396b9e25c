// The on-screen keyboard's picture with keys lit, hovered and selected as a test wants them.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <functional>

#include "UncachedKeyboardPainter.h"
#include "keyboard/KeyboardLayout.h"
#include "keyboard/KeyboardPicture.h"

namespace lumo::test {

inline constexpr double kFullBrightness = 4.0;
inline constexpr double kMiddleSpeed = 2.0;
inline const QRect kWhole(0, 0, 650, 247);

/// The picture that the program is shipped with.
inline QImage shippedPicture() { return QImage(LUMO_ASSETS_FOLDER "/keyimg.png"); }

inline int differenceOf(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

class KeyboardPictureFixture : public testing::Test {
protected:
    std::vector<KeyCap> keys = defaultLayout();
    std::vector<KeyLook> looks = std::vector<KeyLook>(keys.size());
    QImage shipped = shippedPicture();
    KeyboardPicture picture{keys, [this] { return shipped; }};

    KeyLook& look(std::string_view label) { return looks[indexOf(label)]; }

    QRect rect(std::string_view label) const {
        const KeyCap& key = keys[indexOf(label)];
        return QRectF(key.x, key.y, key.width, key.height).toRect();
    }

    void light(std::int64_t mode, double time) {
        for (std::size_t i = 0; i < keys.size(); ++i) {
            looks[i].light = LightingEngine::color(keys[i], mode, time, {0, 210, 255}, kFullBrightness, kMiddleSpeed);
        }
    }

    void lightAll(const Color& color, double glow) {
        for (KeyLook& each : looks) each.light = {color, glow};
    }

    static QImage window(double scale) {
        QImage image((QSizeF(kWhole.size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::magenta);
        return image;
    }

    static QImage paintWith(double scale, const std::function<void(QPainter&)>& paint) {
        QImage image = window(scale);
        {
            QPainter painter(&image);
            paint(painter);
        }
        image.setDevicePixelRatio(1.0);
        return image;
    }

    QImage painted(KeyboardPicture& from, double scale, QPointF origin = {}) {
        from.compose(looks);
        return paintWith(scale, [&](QPainter& painter) { from.paint(painter, origin, kWhole); });
    }

    QImage painted(double scale = 1.0) { return painted(picture, scale); }

    QImage paintedAnew(double scale) {
        KeyboardPicture fresh(keys, [this] { return shipped; });
        return painted(fresh, scale);
    }

    QImage expected(double scale, QPointF origin = {}) const {
        const bench::UncachedKeyboardPainter uncached(keys, shipped);
        return paintWith(scale, [&](QPainter& painter) {
            painter.translate(origin);
            uncached.paint(painter, looks);
        });
    }

private:
    std::size_t indexOf(std::string_view label) const {
        return static_cast<std::size_t>(std::ranges::find(keys, label, &KeyCap::label) - keys.begin());
    }
};

}  // namespace lumo::test
