// A slider on a page of its own, worked by the events that the window system would send.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWindow>
#include <memory>
#include <string>
#include <vector>

#include "controls/Slider.h"
#include "gui/EventCount.h"
#include "support/VirtualTime.h"

namespace lumo::test {

class SliderFixture : public testing::Test {
protected:
    VirtualTime time;
    std::vector<std::string> log;  // what the slider told, in order
    QWidget page;
    Slider* slider = nullptr;

    void SetUp() override {
        page.resize(300, 100);
        page.setFocusPolicy(Qt::StrongFocus);
        make({0.0, 4.0, 1.0});
        page.show();
        page.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
        page.setFocus();
    }

    /// With the knob's places 28, 79, 130, 181 and 232 points from the page's left edge, where there are five.
    void make(const SliderRange& range) {
        delete slider;
        slider = new Slider(range, time.mainQueue(), &page);
        slider->placeHitArea({20, 30, 220, 20});
        slider->show();
        QObject::connect(slider, &Slider::editingChanged, &page,
                         [this](bool begins) { log.emplace_back(begins ? "begin" : "end"); });
        QObject::connect(slider, &Slider::valueChanged, &page,
                         [this](double value) { log.push_back(QString::number(value).toStdString()); });
    }

    void press(double x, double y = 40.0) { QTest::mousePress(window(), Qt::LeftButton, {}, at(x, y)); }
    void moveTo(double x, double y = 40.0) { QTest::mouseMove(window(), at(x, y)); }
    void release(double x, double y = 40.0) { QTest::mouseRelease(window(), Qt::LeftButton, {}, at(x, y)); }
    void turnWheel(int angle) {
        const QPointF onSlider(130.0, 40.0);
        QWheelEvent event(onSlider, page.mapToGlobal(onSlider), QPoint(), QPoint(0, angle), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);  // others are not handed on to the page
        qApp->notify(window(), &event);
    }

    void focus() { slider->setFocus(Qt::TabFocusReason); }
    void keyDown(Qt::Key key, bool repeats = false) { sendKey(QEvent::KeyPress, key, repeats); }
    void keyUp(Qt::Key key, bool repeats = false) { sendKey(QEvent::KeyRelease, key, repeats); }
    void keyClick(Qt::Key key) {
        keyDown(key);
        keyUp(key);
    }

    using Log = std::vector<std::string>;

private:
    QWindow* window() { return page.windowHandle(); }
    static QPoint at(double x, double y) { return QPointF(x, y).toPoint(); }
    void sendKey(QEvent::Type type, Qt::Key key, bool repeats) {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), repeats);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
};

}  // namespace lumo::test
