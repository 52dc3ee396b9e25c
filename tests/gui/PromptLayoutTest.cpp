// Where the prompts stand, and what makes room for them.
#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "app/PageArea.h"
#include "controls/Popup.h"
#include "controls/PushControl.h"
#include "controls/ScrollBar.h"
#include "gui/PromptFixture.h"
#include "keyboard/EffectRow.h"
#include "keyboard/LightingControlView.h"
#include "system/PermissionToast.h"
#include "system/PromptCard.h"

namespace lumo {
namespace {

class PromptLayout : public test::PromptFixture {
protected:
    QRect cardOf(const Popup& popup) const { return rectOf(*popup.findChild<PromptCard*>()); }
    QRect pageRect() const { return rectOf(only<LightingControlView>()); }
    ScrollBar& bar() const { return *only<PageArea>().findChild<ScrollBar*>(); }
    void showToastAlone(QSize size = {960, 760}) {
        showLaterLaunch(size);
        permissions().dismissRecheckPopup();
        time.advance(Duration{0});
        waitForFades();
    }
};

TEST_F(PromptLayout, APopupCoversTheWindowAndItsCardStandsInTheMiddle) {
    showFirstLaunch();
    waitForFades();
    EXPECT_EQ(rectOf(welcome()), QRect(0, 0, 960, 760));
    const QRect card = cardOf(welcome());
    EXPECT_EQ(card.width(), 448);
    EXPECT_LE(std::abs(card.center().x() - 480), 1);
    EXPECT_LE(std::abs(card.center().y() - 380), 1);
}

TEST_F(PromptLayout, TheButtonsShareTheCardsFoot) {
    showFirstLaunch();
    waitForFades();
    const QRect card = cardOf(welcome());
    EXPECT_EQ(rectOf(control("Grant Permissions")), QRect(card.x() + 28, card.bottom() + 1 - 24 - 36, 191, 36));
    EXPECT_EQ(rectOf(control("Later / Settings")), QRect(card.x() + 229, card.bottom() + 1 - 24 - 36, 191, 36));
}

TEST_F(PromptLayout, APopupFollowsTheWindow) {
    showFirstLaunch();
    waitForFades();
    view->resize(900, 680);
    EXPECT_EQ(rectOf(welcome()), QRect(0, 0, 900, 680));
    EXPECT_LE(std::abs(cardOf(welcome()).center().y() - 340), 1);
}

TEST_F(PromptLayout, TheToastStandsAboveTheStatusBarAndThePageMakesRoom) {
    showToastAlone();
    EXPECT_EQ(rectOf(toast()), QRect(444, 660, 500, 60));
    EXPECT_EQ(pageRect(), QRect(16, 340, 928, 308));
    permissions().dismissToast();
    time.advance(Duration{0});
    waitForFades();
    EXPECT_EQ(pageRect(), QRect(16, 340, 928, 380));
}

TEST_F(PromptLayout, TheToastCoversNoControl) {
    for (const QSize size : {QSize(960, 760), QSize(900, 680), QSize(1360, 860)}) {
        showToastAlone(size);
        EXPECT_LE(rectOf(only<PageArea>()).bottom(), rectOf(toast()).top());
        view.reset();
        permissions().showRecheckPopup.set(true);
        permissions().showPermissionToast.set(true);
    }
}

TEST_F(PromptLayout, InTheSmallestWindowThePageScrollsUnderTheToast) {
    showToastAlone({900, 680});
    EXPECT_EQ(pageRect(), QRect(16, 340, 868, 300));  // of which 228 are seen
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(rectOf(bar()), QRect(890, 340, 6, 228));
    QTest::mouseMove(view->windowHandle(), QPoint(24, 400));
    only<PageArea>().verticalScrollBar()->setValue(72);
    EXPECT_EQ(pageRect(), QRect(16, 268, 868, 300));
}

TEST_F(PromptLayout, WithoutTheToastNoPageScrolls) {
    showToastAlone({900, 680});
    permissions().dismissToast();
    time.advance(Duration{0});
    waitForFades();
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(pageRect(), QRect(16, 340, 868, 300));
}

TEST_F(PromptLayout, ThePageScrollsToTheControlThatTheKeyboardComesTo) {
    showToastAlone({900, 680});
    activate();
    control("Dismiss notification").setFocus(Qt::TabFocusReason);
    key(Qt::Key_Tab, Qt::ShiftModifier);
    key(Qt::Key_Tab, Qt::ShiftModifier);
    key(Qt::Key_Tab, Qt::ShiftModifier);  // into the page, at its end
    EXPECT_EQ(focusedName(), "Rainbow Preset");
    EXPECT_LE(rectOf(control("Rainbow Preset")).bottom(), rectOf(only<PageArea>()).bottom());
}

TEST_F(PromptLayout, TheBarsThumbCanBeDragged) {
    showToastAlone({900, 680});
    const QPoint thumb = rectOf(bar()).topLeft() + QPoint(3, 20);
    QTest::mousePress(view->windowHandle(), Qt::LeftButton, {}, thumb);
    QTest::mouseMove(view->windowHandle(), thumb + QPoint(0, 200));
    QTest::mouseRelease(view->windowHandle(), Qt::LeftButton, {}, thumb + QPoint(0, 200));
    EXPECT_EQ(only<PageArea>().verticalScrollBar()->value(), 72);
}

TEST_F(PromptLayout, TheWheelScrollsThePage) {
    showToastAlone({900, 680});
    QWheelEvent down({600, 500}, view->mapToGlobal(QPointF(600, 500)), {0, -60}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(only<PageArea>().viewport(), &down);
    EXPECT_GT(only<PageArea>().verticalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace lumo
