// The prompts by keyboard alone, and as assistive technology sees them.
#include <gmock/gmock.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

#include "controls/Popup.h"
#include "controls/PushControl.h"
#include "gui/AccessibleTree.h"
#include "gui/EventCount.h"
#include "gui/PromptFixture.h"
#include "keyboard/EffectRow.h"
#include "system/PermissionToast.h"

namespace lumo {
namespace {

using test::accessible;
using test::accessibles;
using test::nameOf;
using testing::Contains;
using testing::Not;

class PromptFocus : public test::PromptFixture {
protected:
    [[nodiscard]] std::vector<QString> shownTexts() const {
        std::vector<QString> names;
        for (const QAccessibleInterface* const text : accessibles(*view, QAccessible::StaticText)) {
            if (!text->state().invisible) names.push_back(nameOf(*text));
        }
        return names;
    }
};

TEST_F(PromptFocus, MovesIntoThePopupWhenItOpens) {
    showFirstLaunch();
    activate();
    EXPECT_EQ(focusedName(), "Grant Permissions");
}

TEST_F(PromptFocus, PagesCannotBeChosenByKeysBehindAPopup) {
    showFirstLaunch();
    activate();
    key(Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(state().currentTab.get(), NavTab::lighting);
    permissions().completeFirstLaunch();
    time.advance(Duration{0});
    waitForFades();
    key(Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(state().currentTab.get(), NavTab::settings);
}

TEST_F(PromptFocus, StaysInside) {
    showFirstLaunch();
    activate();
    key(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), "Later / Settings");
    key(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), "Grant Permissions");
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), "Later / Settings");
}

TEST_F(PromptFocus, ShowsItsRingOnceTheKeyboardIsUsed) {
    showFirstLaunch();
    activate();
    EXPECT_FALSE(control("Grant Permissions").showsRing());
    key(Qt::Key_Tab);
    EXPECT_TRUE(control("Later / Settings").showsRing());
}

TEST_F(PromptFocus, ShowsItsRingAtOnceWhereTheKeyboardWasInUse) {
    showLaterLaunch();
    activate();
    permissions().dismissRecheckPopup();
    time.advance(Duration{0});
    key(Qt::Key_Tab);
    permissions().showRecheckPopup.set(true);
    time.advance(Duration{0});
    EXPECT_TRUE(control("Fix in System Settings").showsRing());
}

TEST_F(PromptFocus, GoesBackToWhereItCameFrom) {
    showLaterLaunch();
    activate();
    permissions().dismissRecheckPopup();
    time.advance(Duration{0});
    control("Profile 2").setFocus(Qt::TabFocusReason);
    permissions().showRecheckPopup.set(true);
    time.advance(Duration{0});
    EXPECT_EQ(focusedName(), "Fix in System Settings");
    permissions().dismissRecheckPopup();
    time.advance(Duration{0});
    EXPECT_EQ(focusedName(), "Profile 2");
    EXPECT_TRUE(control("Profile 2").showsRing());
}

TEST_F(PromptFocus, ComesToRestInTheWindowWhereItsFormerPlaceIsGone) {
    showLaterLaunch();
    activate();
    permissions().dismissRecheckPopup();
    time.advance(Duration{0});
    row("Raindrops").setFocus(Qt::TabFocusReason);
    permissions().showRecheckPopup.set(true);
    time.advance(Duration{0});
    key(Qt::Key_Escape);  // changes the page, too
    EXPECT_EQ(state().currentTab.get(), NavTab::settings);
    EXPECT_FALSE(recheck().isAncestorOf(view->window()->focusWidget()));
    EXPECT_NE(view->window()->focusWidget(), nullptr);
}

TEST_F(PromptFocus, EscapeActsAsTheSecondButton) {
    showFirstLaunch();
    activate();
    key(Qt::Key_Escape);
    EXPECT_FALSE(welcome().isShown());
    EXPECT_EQ(state().currentTab.get(), NavTab::settings);
    EXPECT_THAT(platform.journal, testing::ElementsAre("set VexaLumoHasLaunchedBefore true"));
}

TEST_F(PromptFocus, EscapeThatWasHeldDownBeforePressesNothing) {
    showFirstLaunch();
    activate();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&control("Grant Permissions"), &repeated);
    EXPECT_TRUE(permissions().showFirstLaunchPopup.get());
}

TEST_F(PromptFocus, ReturnPressesTheFocusedButton) {
    showFirstLaunch();
    activate();
    key(Qt::Key_Return);
    EXPECT_THAT(platform.journal, Contains("request audio"));
    EXPECT_FALSE(welcome().isShown());
}

TEST_F(PromptFocus, NothingBehindHearsTheKeys) {
    showFirstLaunch();
    activate();
    const test::EventCount behind(*view, QEvent::KeyPress);
    for (const Qt::Key each : {Qt::Key_Down, Qt::Key_Right, Qt::Key_A}) key(each);
    EXPECT_EQ(behind.count(), 0);
    EXPECT_EQ(focusedName(), "Grant Permissions");
    EXPECT_TRUE(welcome().isShown());
}

TEST_F(PromptFocus, TheToastComesLastInTheOrderOfTheTabKey) {
    showLaterLaunch();
    activate();
    permissions().dismissRecheckPopup();
    time.advance(Duration{0});
    view->setFocus();
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), "Dismiss notification");
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), "Fix in Settings");
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(),
              "Audio reactive lighting or macros not working? Permissions missing. Click to open Settings.");
}

TEST_F(PromptFocus, APopupIsAModalDialogOfItsHeading) {
    showFirstLaunch();
    const QAccessibleInterface* const dialog = accessible(*view, QAccessible::Dialog, "Welcome to Vexa Lumo 65");
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->state().modal);
    EXPECT_FALSE(dialog->state().invisible);
}

TEST_F(PromptFocus, EveryTextOfTheWelcomeCanBeRead) {
    showFirstLaunch();
    const auto texts = shownTexts();
    for (const char* const text :
         {"Welcome to Vexa Lumo 65",
          "To unlock full RGB music equalization & macro playback, macOS requires two permissions:",
          "1. Microphone Access", "Drives Mode 17 Music Reactive Lighting & frequency equalizer.",
          "2. Input Monitoring & Accessibility",
          "Allows Macro Studio key sequence recording & global macro triggers."}) {
        EXPECT_THAT(texts, Contains(QString(text)));
    }
}

TEST_F(PromptFocus, EveryTextOfTheRecheckCanBeReadAndNoneOfTheWelcome) {
    showLaterLaunch();
    const auto texts = shownTexts();
    EXPECT_THAT(texts, Contains(QString("One or both required permissions (Microphone or Input Monitoring) are not "
                                        "granted.")));
    EXPECT_THAT(texts, Contains(QString::fromUtf8(
                           "\xE2\x9A\xA0\xEF\xB8\x8F macOS Security Notice: If permissions are already enabled in "
                           "System Settings but features are not responding, macOS TCC privacy cache is out of sync. "
                           "Please remove (-) Vexa Lumo 65 and add (+) it back in System Settings.")));
    EXPECT_THAT(texts, Not(Contains(QString("1. Microphone Access"))));
}

TEST_F(PromptFocus, TheToastIsAnAlertAndItsCloseButtonSaysWhatItDoes) {
    showLaterLaunch();
    EXPECT_NE(accessible(*view, QAccessible::AlertMessage,
                         "Audio reactive lighting or macros not working? Permissions missing. Click to open Settings."),
              nullptr);
    EXPECT_NE(accessible(*view, QAccessible::PushButton, "Dismiss notification"), nullptr);
}

TEST_F(PromptFocus, TheChipsSayTheirStateInWords) {
    platform.grants.canListen = true;
    showFirstLaunch();
    std::vector<QString> words;
    for (const QAccessibleInterface* const dot : accessibles(*view, QAccessible::Graphic)) {
        words.push_back(nameOf(*dot));
    }
    EXPECT_THAT(words, testing::IsSupersetOf({QString("Granted"), QString("Not Granted")}));
    EXPECT_THAT(shownTexts(), testing::IsSupersetOf({QString("Audio Sync"), QString("Macro Tap")}));
}

}  // namespace
}  // namespace lumo
