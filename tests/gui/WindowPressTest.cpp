// A press that no control takes moves the window; one that a control takes does not.
#include <gtest/gtest.h>

#include <QMenu>
#include <QTest>

#include "app/BrandButton.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

/// Counts the presses that arrive at a widget.
class PressCount final : public QObject {
public:
    explicit PressCount(QObject& widget) { widget.installEventFilter(this); }
    int presses = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) ++presses;
        return false;
    }
};

class WindowPress : public test::WindowFixture {
protected:
    void SetUp() override { show(); }

    int pressesThatReachTheWindow(QPoint at) {
        const PressCount count(*view);
        QTest::mouseClick(view->windowHandle(), Qt::LeftButton, {}, at);
        return count.presses;
    }
};

TEST_F(WindowPress, ReachesTheWindowFromEveryEmptyPart) {
    EXPECT_EQ(pressesThatReachTheWindow({480, 20}), 1);   // header
    EXPECT_EQ(pressesThatReachTheWindow({80, 22}), 1);    // title
    EXPECT_EQ(pressesThatReachTheWindow({480, 200}), 1);  // between header and page
    EXPECT_EQ(pressesThatReachTheWindow({600, 355}), 1);  // the card's heading
    EXPECT_EQ(pressesThatReachTheWindow({480, 400}), 1);  // between the columns
    EXPECT_EQ(pressesThatReachTheWindow({600, 746}), 1);  // status bar
}

TEST_F(WindowPress, StaysWithTheControlThatTakesIt) {
    EXPECT_EQ(pressesThatReachTheWindow(rectOf(row("Raindrops")).center()), 0);
#ifndef Q_OS_MACOS
    EXPECT_EQ(pressesThatReachTheWindow(rectOf(only<BrandButton>()).center()), 0);
    only<BrandButton>().menu()->close();
#endif
}

}  // namespace
}  // namespace lumo
