// The settings page's controls, used with mouse and keyboard.
#include <gmock/gmock.h>

#include <QApplication>
#include <QWindow>

#include "gui/SettingsFixture.h"
#include "system/HardwareTuningCard.h"
#include "system/SpecRow.h"

namespace lumo {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class SettingsPage : public test::SettingsFixture {
protected:
    QPoint knob(const Slider& slider, double value) {
        return rectOf(slider).topLeft() + QPointF(slider.knobX(value), slider.hitArea().center().y()).toPoint();
    }
    void drag(Slider& slider, double from, double to) {
        QWindow* const window = view->windowHandle();
        const QPoint begin = knob(slider, from);
        const QPoint end = knob(slider, to);
        QTest::mousePress(window, Qt::LeftButton, {}, begin);
        for (int step = 1; step <= 10; ++step) QTest::mouseMove(window, begin + (end - begin) * step / 10);
        QTest::mouseRelease(window, Qt::LeftButton, {}, end);
        time.settle();
    }
    std::vector<int> debounceLevelsSent() {
        std::vector<int> levels;
        for (const auto& report : firmware.writes()) {
            if (report.at(1) == 0x04) levels.push_back(report.at(10));
        }
        return levels;
    }
    std::vector<QString> tuningTexts() { return shownTexts(only<HardwareTuningCard>()); }
};

TEST_F(SettingsPage, ShowsTheValuesAsTheyAre) {
    showSettings();
    EXPECT_THAT(tuningTexts(), ElementsAre("HARDWARE TUNING", "Wireless Idle Sleep Timeout", "10 min",
                                           "Switch Debounce Time", "4 ms"));
    state().sleepMinutes.set(59.9);
    state().debounceMs.set(40.0);
    turn();
    EXPECT_THAT(tuningTexts(), Contains("59 min"));
    EXPECT_THAT(tuningTexts(), Contains("40 ms"));
}

TEST_F(SettingsPage, TheSleepSliderChangesItsFigureAndNothingElse) {
    connect();
    recordStatuses();
    showSettings();
    drag(sleep(), 10.0, 60.0);
    EXPECT_EQ(state().sleepMinutes.get(), 60.0);
    EXPECT_THAT(tuningTexts(), Contains("60 min"));
    drag(sleep(), 60.0, 1.0);
    EXPECT_EQ(state().sleepMinutes.get(), 1.0);
    EXPECT_THAT(firmware.writes(), IsEmpty());
    EXPECT_THAT(statuses(), IsEmpty());
}

TEST_F(SettingsPage, PressingAndReleasingTheDebounceKnobSendsItsValueTwiceAndKeepsIt) {
    connect();
    showSettings();
    drag(debounce(), 4.0, 4.0);
    EXPECT_THAT(debounceLevelsSent(), ElementsAre(0, 0));
    EXPECT_THAT(commandsSent(), ElementsAre(0x84, 0x04, 0x84, 0x04));
    EXPECT_EQ(state().debounceMs.get(), 4.0);
    EXPECT_THAT(tuningTexts(), Contains("4 ms"));
    EXPECT_EQ(statusLine().text(), "Debounce set to 0ms");
}

TEST_F(SettingsPage, ADraggedDebounceIsSentAsItWasAndAsItIs) {
    connect();
    showSettings();
    drag(debounce(), 4.0, 30.0);
    EXPECT_THAT(debounceLevelsSent(), ElementsAre(0, 3));
    EXPECT_EQ(state().debounceMs.get(), 30.0);
    EXPECT_THAT(tuningTexts(), Contains("30 ms"));
    EXPECT_EQ(statusLine().text(), "Debounce set to 30ms");
}

TEST_F(SettingsPage, TheDebounceStopsAtMultiplesOf10) {
    connect();
    showSettings();
    debounce().setFocus(Qt::TabFocusReason);
    std::vector<double> stops;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(&debounce(), Qt::Key_Right);
        stops.push_back(state().debounceMs.get());
    }
    EXPECT_THAT(stops, ElementsAre(10.0, 20.0, 30.0, 40.0, 40.0, 40.0));
    QTest::keyClick(&debounce(), Qt::Key_Home);
    EXPECT_EQ(state().debounceMs.get(), 0.0);
    time.advance(std::chrono::seconds(1));
    time.settle();
    EXPECT_THAT(debounceLevelsSent(), ElementsAre(0, 0));  // one use: as it began, and as it ended
}

TEST_F(SettingsPage, RestoringActsOnTheFirstPress) {
    connect();
    recordStatuses();
    showSettings();
    state().debounceMs.set(40.0);
    press(control("Restore Factory Settings"));
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04, 0x84, 0x04));
    EXPECT_THAT(statuses(), ElementsAre("Device restored to factory defaults.", "Applied: Flash_away (Stream)",
                                        "Debounce set to 10ms"));
    EXPECT_EQ(state().debounceMs.get(), 40.0);
}

TEST_F(SettingsPage, TheSheetSaysTenThingsAndNeverChanges) {
    showSettings();
    const auto sheet = [this] {
        std::vector<std::vector<QString>> rows;
        for (const SpecRow* const row : view->findChildren<SpecRow*>()) rows.push_back(shownTexts(*row));
        return rows;
    };
    const std::vector<std::vector<QString>> expected{
        {"Device Model", "Vexa Lumo 65 Mechanical Keyboard"},
        {"OEM Solution ID", "BYCOMBO4"},
        {"Architecture", "SinoWealth / BY-Tech K916"},
        {"Firmware Revision", "v24 (0x18)"},
        {"Wired USB Descriptor", "VID: 0x258A | PID: 0x010C"},
        {"Wireless 2.4G Descriptor", "VID: 0x3554 | PID: 0xFA09"},
        {"Total Physical Keys", "68 Keys (65% ANSI)"},
        {"Dual-Bank RGB Matrices", "Bank 1: 0xBC (0-63) | Bank 2: 0xC0 (64-100)"},
        {"Audio Reactive Endpoint", "hMusic (UsagePage 0xFF00, 382 Bytes)"},
        {"macOS Driver Subsystem", "IOKit.hid / IOHIDManager native"},
    };
    EXPECT_EQ(sheet(), expected);
    connect();
    EXPECT_EQ(sheet(), expected);
}

TEST_F(SettingsPage, AGrantedRowKeepsOnlyItsGear) {
    showSettings();
    for (const int index : {0, 1}) {
        PermissionRow& row = permissionRow(index);
        EXPECT_THAT(shownTexts(row), Contains("Granted"));
        EXPECT_FALSE(button(row, "Request Access").isVisible());
        EXPECT_TRUE(button(row, "Open System Settings").isVisible());
    }
    revokeBoth();
    for (const int index : {0, 1}) {
        PermissionRow& row = permissionRow(index);
        EXPECT_THAT(shownTexts(row), Contains("Not Granted"));
        EXPECT_TRUE(button(row, "Request Access").isVisible());
        EXPECT_TRUE(button(row, "Open System Settings").isVisible());
    }
}

TEST_F(SettingsPage, EachRowFollowsItsOwnGrant) {
    showSettings();
    platform.grants.canListen = false;
    objects.permissionManager().checkPermissions();
    turn();
    turn();
    EXPECT_THAT(shownTexts(permissionRow(0)), ElementsAre("Microphone Access", "Granted"));
    EXPECT_THAT(shownTexts(permissionRow(1)), ElementsAre("Accessibility & Input Monitoring", "Not Granted"));
    platform.grants.isTrusted = true;
    objects.permissionManager().checkPermissions();
    turn();
    turn();
    EXPECT_THAT(shownTexts(permissionRow(1)), ElementsAre("Accessibility & Input Monitoring", "Granted"));
}

TEST_F(SettingsPage, RefreshStatusFindsWhatWasGrantedMeanwhile) {
    showSettings();
    revokeBoth();
    turn();
    platform.grants.audio = AudioAuthorization::authorized;
    EXPECT_THAT(shownTexts(permissionRow(0)), Contains("Not Granted"));
    press(control("Refresh Status"));
    turn();
    EXPECT_THAT(shownTexts(permissionRow(0)), Contains("Granted"));
    EXPECT_THAT(shownTexts(permissionRow(1)), Contains("Not Granted"));
}

TEST_F(SettingsPage, TheRowsAskAndLeadToTheirPanes) {
    showSettings();
    revokeBoth();
    turn();
    press(button(permissionRow(0), "Request Access"));
    EXPECT_THAT(platform.journal, ElementsAre("request audio"));
    platform.journal.clear();
    press(button(permissionRow(1), "Request Access"));
    EXPECT_THAT(platform.journal,
                ElementsAre("request listen", "trusted, with prompt",
                            "open x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent"));
    platform.journal.clear();
    press(button(permissionRow(0), "Open System Settings"));
    press(button(permissionRow(1), "Open System Settings"));
    EXPECT_THAT(platform.journal,
                ElementsAre("open x-apple.systempreferences:com.apple.preference.security?Privacy_Microphone",
                            "open x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent"));
}

TEST_F(SettingsPage, RelaunchOpensTheProgramAgainAndEndsThisOne) {
    showSettings();
    press(control("Relaunch App"));
    EXPECT_THAT(platform.journal, ElementsAre("open this application"));
    platform.surroundings.completeOpening();
    turn();
    EXPECT_THAT(platform.journal, ElementsAre("open this application", "terminate"));
}

TEST_F(SettingsPage, CanBeUsedByTheKeyboardAlone) {
    state().currentTab.set(NavTab::settings);
    showActive();
    revokeBoth();
    turn();
    std::vector<QString> stops;
    control("WASD").setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        stops.push_back(QApplication::focusWidget()->accessibleName());
    }
    EXPECT_THAT(stops, ElementsAre("Wireless Idle Sleep Timeout", "Switch Debounce Time", "Restore Factory Settings",
                                   "Refresh Status", "Request Access", "Open System Settings", "Request Access",
                                   "Open System Settings", "Relaunch App"));
}

TEST_F(SettingsPage, AFocusedRequestHandsItsFocusToTheGearWithItsRing) {
    state().currentTab.set(NavTab::settings);
    showActive();
    const auto ringAfter = [this](Qt::FocusReason reason) {
        revokeBoth();
        turn();
        button(permissionRow(0), "Request Access").setFocus(reason);
        platform.grants.audio = AudioAuthorization::authorized;
        objects.permissionManager().checkPermissions();
        turn();
        turn();
        PushControl& gear = button(permissionRow(0), "Open System Settings");
        EXPECT_TRUE(gear.hasFocus());
        return gear.showsRing();
    };
    EXPECT_TRUE(ringAfter(Qt::TabFocusReason));
    EXPECT_FALSE(ringAfter(Qt::MouseFocusReason));
}

}  // namespace
}  // namespace lumo
