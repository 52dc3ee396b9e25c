// The prompts while they come and go, step by step.
#include <gmock/gmock.h>

#include <QTest>

#include "controls/FocusRing.h"
#include "controls/Popup.h"
#include "controls/PushControl.h"
#include "gui/EventCount.h"
#include "gui/PromptFixture.h"
#include "gui/SteppedMotion.h"
#include "keyboard/KeyboardCanvas.h"
#include "system/PermissionToast.h"
#include "system/PromptCard.h"

namespace lumo {
namespace {

class PromptFade : public test::PromptFixture {
protected:
    static constexpr qint64 kLong = 1000;
    static constexpr qint64 kMidway = 60;
    static constexpr QPoint kBeside{22, 60};  // in the track of the pills, below no card

    test::SteppedMotion motion;

    void showLaterLaunchAlone() {
        showLaterLaunch();
        motion.goOn(kLong);
    }
    void dismissRecheck() {
        permissions().dismissRecheckPopup();
        time.advance(Duration{0});
    }
    void raiseRecheck() {
        permissions().showRecheckPopup.set(true);
        time.advance(Duration{0});
    }
    [[nodiscard]] QRect cardOf(const Popup& popup) const { return rectOf(*popup.findChild<PromptCard*>()); }
    [[nodiscard]] QColor colorAt(QPoint place) const { return view->grab().toImage().pixelColor(place); }
};

TEST_F(PromptFade, APopupRisesIntoItsPlaceAndIsThenAtRest) {
    showFirstLaunch();
    const int below = cardOf(welcome()).top();
    motion.goOn(kMidway);
    EXPECT_LT(cardOf(welcome()).top(), below);
    EXPECT_FALSE(welcome().isResting());
    motion.goOn(kLong);
    EXPECT_EQ(cardOf(welcome()).top(), below - 8);
    EXPECT_TRUE(welcome().isResting());
}

TEST_F(PromptFade, APopupThatIsClosedWhileItComesGoesFromWhereItStands) {
    showLaterLaunch();
    motion.goOn(kMidway);
    const QRect place = cardOf(recheck());
    dismissRecheck();
    EXPECT_EQ(cardOf(recheck()), place);
    motion.goOn(kMidway);
    EXPECT_EQ(cardOf(recheck()), place);
    motion.goOn(kLong);
    EXPECT_FALSE(recheck().isVisible());
}

TEST_F(PromptFade, APopupThatIsRaisedAgainWhileItGoesComesBackFromWhereItStands) {
    showLaterLaunchAlone();
    const QRect place = cardOf(recheck());
    dismissRecheck();
    motion.goOn(kMidway);
    raiseRecheck();
    EXPECT_EQ(cardOf(recheck()), place);
    motion.goOn(kLong);
    EXPECT_TRUE(recheck().isVisible());
    EXPECT_TRUE(recheck().isResting());
    EXPECT_EQ(cardOf(recheck()), place);
    EXPECT_EQ(widgetAt({100, 70}), "Permissions Setup Needed");
}

TEST_F(PromptFade, APromptGoesByAndByAlsoTheSecondTime) {
    showLaterLaunch();
    for (int i = 0; i < 2; ++i) {
        motion.goOn(kLong);
        const int full = colorAt(kBeside).lightness();
        permissions().dismissToast();
        dismissRecheck();
        EXPECT_TRUE(recheck().isVisible());
        motion.goOn(kMidway);
        const int half = colorAt(kBeside).lightness();
        EXPECT_GT(half, full);
        EXPECT_GT(toast().share(), 0.0);
        EXPECT_LT(toast().share(), 1.0);
        motion.goOn(kLong);
        EXPECT_GT(colorAt(kBeside).lightness(), half);
        EXPECT_FALSE(recheck().isVisible());
        EXPECT_FALSE(toast().isVisible());
        permissions().showPermissionToast.set(true);
        raiseRecheck();
        motion.goOn(kMidway);
        EXPECT_GT(toast().share(), 0.0);
        EXPECT_LT(toast().share(), 1.0);
    }
}

TEST_F(PromptFade, APopupTakesPressesFromItsFirstMoment) {
    showFirstLaunch();
    EXPECT_EQ(widgetAt({100, 70}), "Welcome to Vexa Lumo 65");
}

TEST_F(PromptFade, APopupOnItsWayOutStandsInNoPressesWay) {
    showLaterLaunchAlone();
    dismissRecheck();
    EXPECT_TRUE(recheck().isVisible());
    click("Profile 2");
    EXPECT_EQ(state().activeProfile.get(), 2);
}

TEST_F(PromptFade, AToastOnItsWayOutTakesNoPress) {
    showLaterLaunchAlone();
    dismissRecheck();
    motion.goOn(kLong);
    const QPoint fix = rectOf(control("Fix in Settings")).center();
    EXPECT_EQ(widgetAt(fix), "Fix in Settings");
    click("Dismiss notification");
    EXPECT_TRUE(toast().isVisible());
    EXPECT_NE(widgetAt(fix), "Fix in Settings");
}

TEST_F(PromptFade, TheTabKeyDoesNotComeToAPopupOnItsWayOut) {
    showFirstLaunch();
    activate();
    motion.goOn(kLong);
    key(Qt::Key_Escape);
    EXPECT_TRUE(welcome().isVisible());
    for (int i = 0; i < 3; ++i) {
        key(Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_FALSE(welcome().isAncestorOf(view->window()->focusWidget())) << focusedName().toStdString();
    }
}

TEST_F(PromptFade, APopupThatIsShownAgainCanBeReachedAgain) {
    showLaterLaunchAlone();
    activate();
    dismissRecheck();
    motion.goOn(kLong);
    raiseRecheck();
    key(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), "Dismiss to Settings");
}

TEST_F(PromptFade, AToastClosedByTheMouseLeavesNoRingAnywhere) {
    showLaterLaunchAlone();
    activate();
    dismissRecheck();
    motion.goOn(kLong);
    click("Dismiss notification");
    motion.goOn(kLong);
    EXPECT_FALSE(toast().isVisible());
    EXPECT_FALSE(only<FocusRing>().isVisible()) << focusedName().toStdString();
}

TEST_F(PromptFade, APageThatGoesWithAPopupLeavesNoRingAnywhere) {
    showLaterLaunchAlone();
    activate();
    dismissRecheck();
    motion.goOn(kLong);
    click("Raindrops");
    raiseRecheck();
    click("Dismiss to Settings");
    motion.goOn(kLong);
    QCoreApplication::processEvents();
    EXPECT_FALSE(only<FocusRing>().isVisible()) << focusedName().toStdString();
}

TEST_F(PromptFade, AToastClosedByTheKeyboardLeavesTheFocusInTheWindow) {
    showLaterLaunchAlone();
    activate();
    dismissRecheck();
    motion.goOn(kLong);
    control("Dismiss notification").setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    motion.goOn(kLong);
    QWidget* const focused = view->window()->focusWidget();
    ASSERT_NE(focused, nullptr);
    EXPECT_TRUE(focused->isVisible());
    EXPECT_FALSE(toast().isAncestorOf(focused));
}

TEST_F(PromptFade, TheRecheckLiesAboveTheWelcomeAndTheFocusNeverStaysInOneThatIsGone) {
    showFirstLaunch();
    activate();
    raiseRecheck();
    motion.goOn(kLong);
    EXPECT_EQ(widgetAt(cardOf(recheck()).center()), "");
    EXPECT_TRUE(recheck().isAncestorOf(view->childAt(cardOf(recheck()).center())));
    EXPECT_EQ(focusedName(), "Fix in System Settings");
    permissions().completeFirstLaunch();
    time.advance(Duration{0});
    EXPECT_EQ(focusedName(), "Fix in System Settings");
    dismissRecheck();
    EXPECT_FALSE(welcome().isAncestorOf(view->window()->focusWidget()));
    motion.goOn(kLong);
    ASSERT_NE(view->window()->focusWidget(), nullptr);
    EXPECT_TRUE(view->window()->focusWidget()->isVisible());
}

TEST_F(PromptFade, OnlyWhatIsAllThereLetsNothingThrough) {
    showLaterLaunch();
    const QWidget& ground = recheck().findChild<PromptCard*>()->ground();
    EXPECT_FALSE(ground.testAttribute(Qt::WA_OpaquePaintEvent));
    motion.goOn(kMidway);
    EXPECT_FALSE(ground.testAttribute(Qt::WA_OpaquePaintEvent));
    motion.goOn(kLong);
    EXPECT_TRUE(ground.testAttribute(Qt::WA_OpaquePaintEvent));
    dismissRecheck();
    motion.goOn(kMidway);
    EXPECT_FALSE(ground.testAttribute(Qt::WA_OpaquePaintEvent));
}

TEST_F(PromptFade, UnderARestingPopupAnEffectPaintsNothingOfItsCard) {
    showFirstLaunch();
    motion.goOn(kLong);
    QCoreApplication::processEvents();
    std::vector<std::unique_ptr<test::EventCount>> paintings;
    for (QWidget* const each : welcome().findChildren<QWidget*>()) {
        if (each->parentWidget() != &welcome()) {
            paintings.push_back(std::make_unique<test::EventCount>(*each, QEvent::Paint));
        }
    }
    const test::EventCount dimmed(welcome(), QEvent::Paint);
    auto& canvas = only<KeyboardCanvas>();
    ASSERT_TRUE(cardOf(welcome()).intersects(rectOf(canvas)));
    canvas.update();
    ASSERT_TRUE(QTest::qWaitFor([&] { return dimmed.count() > 0; }));
    for (const auto& painting : paintings) EXPECT_EQ(painting->count(), 0);
}

}  // namespace
}  // namespace lumo
