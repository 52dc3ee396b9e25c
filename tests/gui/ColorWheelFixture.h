// A colour wheel on a page of its own, worked by the events that the window system would send.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWindow>
#include <vector>

#include "controls/ColorWheel.h"
#include "support/VirtualTime.h"

namespace lumo::test {

/// The disc has its centre at (150, 120) and the radius 98.
class ColorWheelFixture : public testing::Test {
protected:
    VirtualTime time;
    QWidget page;
    ColorWheel wheel{[] { return QImage(); }, time.mainQueue(), &page};
    std::vector<Color> reported;

    void SetUp() override {
        page.resize(300, 240);
        page.setFocusPolicy(Qt::StrongFocus);
        wheel.placePicture({50, 20, 200, 200});
        page.show();
        page.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
        page.setFocus();
        QObject::connect(&wheel, &ColorWheel::picked, &page, [this](const Color& color) { reported.push_back(color); });
    }

    void press(double x, double y) { QTest::mousePress(page.windowHandle(), Qt::LeftButton, {}, at(x, y)); }
    void moveTo(double x, double y) { QTest::mouseMove(page.windowHandle(), at(x, y)); }
    void release(double x, double y) { QTest::mouseRelease(page.windowHandle(), Qt::LeftButton, {}, at(x, y)); }
    void focus() { wheel.setFocus(Qt::TabFocusReason); }
    void keyDown(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, bool repeats = false) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), repeats);
        QApplication::sendEvent(&wheel, &event);
    }
    void keyClick(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&wheel, key, modifiers); }

    /// In the page, to half a point.
    void expectMarkerAt(double x, double y) const {
        const QPointF marker = QPointF(wheel.pos()) + wheel.markerCentre();
        EXPECT_NEAR(marker.x(), x, 0.5);
        EXPECT_NEAR(marker.y(), y, 0.5);
    }
    std::vector<ColorBytes> reportedBytes() const {
        std::vector<ColorBytes> bytes;
        for (const Color& color : reported) bytes.push_back(toBytes(color));
        return bytes;
    }
    using Bytes = std::vector<ColorBytes>;

    QImage painted(double scale) {
        QImage picture(wheel.size() * scale, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        wheel.render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
        return picture;
    }

private:
    static QPoint at(double x, double y) { return QPointF(x, y).toPoint(); }
};

}  // namespace lumo::test
