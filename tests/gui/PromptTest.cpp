// What the prompts about permissions do, with real clicks.
#include <gmock/gmock.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

#include "app/StatusBar.h"
#include "app/StatusChip.h"
#include "controls/Popup.h"
#include "controls/PushControl.h"
#include "gui/EventCount.h"
#include "gui/PromptFixture.h"
#include "system/PermissionToast.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kMicrophoneLink = "open x-apple.systempreferences:com.apple.preference.security?Privacy_Microphone";
constexpr auto kListenLink = "open x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent";
constexpr auto kFlagWritten = "set VexaLumoHasLaunchedBefore true";
constexpr auto kToastText =
    "Audio reactive lighting or macros not working? Permissions missing. Click to open Settings.";

using Prompt = test::PromptFixture;

TEST_F(Prompt, TheFirstLaunchShowsTheWelcomeAlone) {
    showFirstLaunch();
    EXPECT_THAT(popupsInSight(), ElementsAre("Welcome to Vexa Lumo 65"));
    EXPECT_FALSE(toast().isVisible());
}

TEST_F(Prompt, ALaterLaunchWithAGrantMissingShowsPopupAndToast) {
    showLaterLaunch();
    EXPECT_THAT(popupsInSight(), ElementsAre("Permissions Setup Needed"));
    EXPECT_TRUE(toast().isVisible());
}

TEST_F(Prompt, ALaterLaunchWithEverythingGrantedNeverShowsAny) {
    platform.grants.audio = AudioAuthorization::authorized;
    platform.grants.canListen = true;
    const auto isAnyVisible = [this] { return !popupsInSight().empty() || toast().isVisible(); };
    isLaterLaunch = true;
    show();
    EXPECT_TRUE(permissions().showRecheckPopup.get());  // raised, until the first check is through
    EXPECT_FALSE(isAnyVisible());
    time.advance(Duration{0});
    EXPECT_FALSE(permissions().showRecheckPopup.get());
    EXPECT_FALSE(isAnyVisible());
}

TEST_F(Prompt, GrantPermissionsClosesTheWelcomeAtOnceAndAsksForTheKeysAfterTheMicrophone) {
    showFirstLaunch();
    click("Grant Permissions");
    EXPECT_FALSE(welcome().isShown());
    EXPECT_THAT(platform.journal, ElementsAre("request audio", kFlagWritten));
    platform.grants.answerMicrophone(true);
    time.advance(Duration{0});
    EXPECT_THAT(platform.journal,
                ElementsAre("request audio", kFlagWritten, "request listen", "trusted, with prompt", kListenLink));
    EXPECT_EQ(state().currentTab.get(), NavTab::lighting);
}

TEST_F(Prompt, LaterLandsOnTheSettingsAndTheWelcomeNeverComesBack) {
    showFirstLaunch();
    click("Later / Settings");
    EXPECT_EQ(state().currentTab.get(), NavTab::settings);
    EXPECT_FALSE(welcome().isShown());
    EXPECT_THAT(platform.journal, ElementsAre(kFlagWritten));
    const auto next = PermissionManager::make(time.mainQueue(), platform.grants, platform.surroundings, platform.kept);
    EXPECT_FALSE(next->showFirstLaunchPopup.get());
}

TEST_F(Prompt, LaterWritesTheFlagBeforeItChangesThePage) {
    showFirstLaunch();
    std::vector<std::string> atChange;
    const auto watching = state().observe([&] { atChange = platform.journal; });
    click("Later / Settings");
    EXPECT_THAT(atChange, ElementsAre(kFlagWritten));
}

TEST_F(Prompt, TheWelcomeGoesByItselfOnceEverythingIsGranted) {
    showFirstLaunch();
    platform.grants.audio = AudioAuthorization::authorized;
    platform.grants.isTrusted = true;
    time.advance(std::chrono::seconds(2));
    EXPECT_FALSE(welcome().isShown());
}

TEST_F(Prompt, FixInSystemSettingsOpensTheMicrophonePaneAlsoWhenOnlyTheKeysAreMissing) {
    platform.grants.audio = AudioAuthorization::authorized;
    showLaterLaunch();
    std::vector<bool> popupAtChange;
    const auto watching = state().observe([&] { popupAtChange.push_back(permissions().showRecheckPopup.get()); });
    click("Fix in System Settings");
    EXPECT_THAT(platform.journal, ElementsAre(kMicrophoneLink));
    EXPECT_THAT(popupAtChange, ElementsAre(false));  // dismissed first, and before the page the pane is not opened
    EXPECT_EQ(state().currentTab.get(), NavTab::settings);
    EXPECT_FALSE(recheck().isShown());
    EXPECT_TRUE(permissions().showPermissionToast.get());
}

TEST_F(Prompt, DismissToSettingsOpensNothing) {
    showLaterLaunch();
    click("Dismiss to Settings");
    EXPECT_THAT(platform.journal, IsEmpty());
    EXPECT_EQ(state().currentTab.get(), NavTab::settings);
    EXPECT_FALSE(recheck().isShown());
    EXPECT_TRUE(permissions().showPermissionToast.get());  // the toast is closed on its own
}

TEST_F(Prompt, TheToastsTextAndButtonLeadToTheSettingsAndLeaveItStanding) {
    showLaterLaunch();
    permissions().dismissRecheckPopup();
    time.advance(Duration{0});
    for (const char* const name : {kToastText, "Fix in Settings"}) {
        state().currentTab.set(NavTab::lighting);
        time.advance(Duration{0});
        click(name);
        EXPECT_EQ(state().currentTab.get(), NavTab::settings) << name;
        EXPECT_TRUE(permissions().showPermissionToast.get()) << name;
    }
    EXPECT_THAT(platform.journal, IsEmpty());
}

TEST_F(Prompt, ClosingTheToastLeavesThePopup) {
    showLaterLaunch();
    control("Dismiss notification").click();  // the popup lies above it
    time.advance(Duration{0});
    EXPECT_FALSE(permissions().showPermissionToast.get());
    EXPECT_TRUE(recheck().isShown());
}

TEST_F(Prompt, ClosingThePopupLeavesTheToast) {
    showLaterLaunch();
    click("Dismiss to Settings");
    waitForFades();
    EXPECT_FALSE(recheck().isShown());
    EXPECT_TRUE(permissions().showPermissionToast.get());
    EXPECT_TRUE(toast().isVisible());
}

TEST_F(Prompt, TheToastGoesWithTheCloseButton) {
    showLaterLaunch();
    permissions().dismissRecheckPopup();
    time.advance(Duration{0});
    click("Dismiss notification");
    waitForFades();
    EXPECT_FALSE(toast().isVisible());
    EXPECT_EQ(state().currentTab.get(), NavTab::lighting);
}

TEST_F(Prompt, ThePopupLiesAboveTheToast) {
    showLaterLaunch();
    waitForFades();
    EXPECT_TRUE(toast().isVisible());
    EXPECT_EQ(widgetAt(rectOf(control("Fix in Settings")).center()), "Permissions Setup Needed");
}

TEST_F(Prompt, TheBackdropTakesEveryClickAndDoesNothingWithIt) {
    showFirstLaunch();
    const QString before = focusedName();
    for (const QPoint at : {QPoint(100, 70), QPoint(60, 380), QPoint(300, 200), QPoint(480, 20), QPoint(800, 650)}) {
        QTest::mouseClick(view->windowHandle(), Qt::LeftButton, {}, at);
        time.advance(Duration{0});
    }
    EXPECT_TRUE(welcome().isShown());
    EXPECT_EQ(state().currentTab.get(), NavTab::lighting);
    EXPECT_EQ(state().activeProfile.get(), 1);
    EXPECT_TRUE(keyboard().selectedKeyIds.get().empty());
    EXPECT_EQ(focusedName(), before);
    EXPECT_THAT(platform.journal, IsEmpty());
}

TEST_F(Prompt, TheBackdropLetsNoPointerEventThrough) {
    showFirstLaunch();
    const QPointF at(100, 70);
    const QPointF onScreen = view->mapToGlobal(at);
    QWheelEvent wheel(at, onScreen, {0, -60}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, at.toPoint(), onScreen.toPoint());
    QMouseEvent press(QEvent::MouseButtonPress, at, onScreen, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QMouseEvent twice(QEvent::MouseButtonDblClick, at, onScreen, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    for (QEvent* const event : {static_cast<QEvent*>(&wheel), static_cast<QEvent*>(&menu), static_cast<QEvent*>(&press),
                                static_cast<QEvent*>(&twice)}) {
        const test::EventCount behind(*view, event->type());
        QApplication::sendEvent(&welcome(), event);
        EXPECT_TRUE(event->isAccepted()) << event->type();
        EXPECT_EQ(behind.count(), 0) << event->type();
    }
}

TEST_F(Prompt, TheChipsTellTheTwoGrantsApart) {
    platform.grants.audio = AudioAuthorization::denied;
    platform.grants.canListen = true;
    showFirstLaunch();
    const auto chips = only<StatusBar>().findChildren<StatusChip*>();
    ASSERT_EQ(chips.size(), 2);
    EXPECT_FALSE(chips[0]->isGranted());  // Audio Sync
    EXPECT_TRUE(chips[1]->isGranted());   // Macro Tap
    platform.grants.audio = AudioAuthorization::authorized;
    platform.grants.canListen = false;
    time.advance(std::chrono::seconds(2));
    EXPECT_TRUE(chips[0]->isGranted());
    EXPECT_FALSE(chips[1]->isGranted());
}

}  // namespace
}  // namespace lumo
