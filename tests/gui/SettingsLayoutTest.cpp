// Where things stand on the settings page, and what assistive technology finds there.
#include <gmock/gmock.h>

#include <QApplication>
#include <QScrollBar>

#include "app/PageArea.h"
#include "controls/PushButton.h"
#include "controls/TextBlock.h"
#include "gui/AccessibleTree.h"
#include "gui/SettingsFixture.h"
#include "system/DeviceSheet.h"
#include "system/HardwareTuningCard.h"
#include "system/PermissionsCard.h"
#include "system/SettingsView.h"
#include "system/SpecRow.h"
#include "system/TccNotice.h"

namespace lumo {
namespace {

using test::accessibles;
using test::nameOf;
using testing::ElementsAre;

class SettingsLayout : public test::SettingsFixture {
protected:
    QRect specRow(int index) { return rectOf(*view->findChildren<SpecRow*>().at(index)); }
    QRect hitArea(const Slider& slider) { return slider.hitArea().translated(rectOf(slider).topLeft()); }
    QScrollBar& scrollBar() { return *only<PageArea>().verticalScrollBar(); }
    void expectNothingElided() {
        for (const TextLine* const line : view->findChildren<TextLine*>()) {
            EXPECT_FALSE(line->isVisible() && line->isElided()) << line->text().toStdString();
        }
        for (const TextBlock* const block : view->findChildren<TextBlock*>()) {
            EXPECT_FALSE(block->isVisible() && block->isElided()) << block->text().toStdString();
        }
        for (const PushButton* const each : view->findChildren<PushButton*>()) {
            if (!each->isVisible()) continue;
            EXPECT_LE(each->widthWith(6), each->width()) << each->text().toStdString();
        }
    }
};

TEST_F(SettingsLayout, TheUsualWindow) {
    showSettings({960, 760});
    EXPECT_EQ(rectOf(only<HardwareTuningCard>()), QRect(16, 340, 928, 83));
    EXPECT_EQ(rectOf(only<DeviceSheet>()), QRect(16, 435, 420, 285));
    EXPECT_EQ(rectOf(only<PermissionsCard>()), QRect(448, 435, 496, 285));
    EXPECT_EQ(hitArea(sleep()).topLeft(), QPoint(30, 391));
    EXPECT_EQ(hitArea(sleep()).height(), 20);
    EXPECT_EQ(hitArea(debounce()).left(), hitArea(sleep()).right() + 1 + 32);
    EXPECT_EQ(rectOf(control("Restore Factory Settings")).right() + 1, 930);
    EXPECT_EQ(rectOf(control("Restore Factory Settings")).top(), 383);
    EXPECT_EQ(rectOf(control("Restore Factory Settings")).left(), hitArea(debounce()).right() + 1 + 32);
    EXPECT_EQ(specRow(0), QRect(30, 463, 392, 24));
    EXPECT_EQ(specRow(9), QRect(30, 688, 392, 24));
    EXPECT_EQ(rectOf(permissionRow(0)), QRect(462, 480, 468, 59));
    EXPECT_EQ(rectOf(permissionRow(1)), QRect(462, 540, 468, 59));
    EXPECT_EQ(rectOf(button(permissionRow(0), "Open System Settings")), QRect(906, 497, 24, 24));
    EXPECT_EQ(rectOf(only<TccNotice>()), QRect(462, 604, 468, 74));
    EXPECT_EQ(rectOf(control("Refresh Status")).top(), 443);
    EXPECT_EQ(rectOf(control("Relaunch App")).top(), 686);
    EXPECT_EQ(rectOf(control("Relaunch App")).right() + 1, 930);
    EXPECT_EQ(scrollBar().maximum(), 0);
}

TEST_F(SettingsLayout, TheSmallestWindowScrollsIt) {
    showSettings({900, 680});
    EXPECT_EQ(rectOf(only<SettingsView>()), QRect(16, 340, 868, 380));
    EXPECT_EQ(scrollBar().maximum(), 80);
    EXPECT_EQ(rectOf(only<HardwareTuningCard>()), QRect(16, 340, 868, 83));
    EXPECT_EQ(hitArea(debounce()).left(), hitArea(sleep()).right() + 1 + 24);
    EXPECT_EQ(rectOf(only<DeviceSheet>()), QRect(16, 435, 404, 285));
    EXPECT_EQ(rectOf(only<PermissionsCard>()), QRect(432, 435, 452, 285));
    EXPECT_EQ(specRow(0), QRect(30, 463, 376, 24));
    EXPECT_EQ(rectOf(permissionRow(0)), QRect(446, 467, 424, 59));
    EXPECT_EQ(rectOf(permissionRow(1)), QRect(446, 527, 424, 59));
    EXPECT_EQ(rectOf(only<TccNotice>()), QRect(446, 591, 424, 88));
    EXPECT_EQ(rectOf(control("Relaunch App")).bottom() + 1, 711);
}

TEST_F(SettingsLayout, TheFocusBringsWhatIsBelowIntoView) {
    state().currentTab.set(NavTab::settings);
    showActive();
    view->resize(900, 680);
    button(permissionRow(1), "Open System Settings").setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(control("Relaunch App").hasFocus());
    EXPECT_GT(scrollBar().value(), 40);
    EXPECT_EQ(control("Relaunch App").visibleRegion().boundingRect(), control("Relaunch App").rect());
}

TEST_F(SettingsLayout, NothingIsElidedInTheSmallestWindowWhateverIsGranted) {
    showSettings({900, 680});
    expectNothingElided();
    revokeBoth();
    turn();
    expectNothingElided();
}

TEST_F(SettingsLayout, InANarrowRowTheButtonsMakeWayForTheTitle) {
    showSettings({900, 680});
    revokeBoth();
    turn();
    const QRect title = rectOf(*permissionRow(1).findChildren<TextLine*>().front());
    const QRect request = rectOf(button(permissionRow(1), "Request Access"));
    EXPECT_GE(request.top(), title.bottom());
    EXPECT_EQ(request.top(), rectOf(permissionRow(1)).top() + 25);
    EXPECT_EQ(rectOf(button(permissionRow(0), "Request Access")).top(), rectOf(permissionRow(0)).top() + 17);
}

TEST_F(SettingsLayout, TheRowsAreGroupsNamedByTheirTitles) {
    showSettings();
    std::vector<QString> groups;
    for (const QAccessibleInterface* const group : accessibles(*view, QAccessible::Grouping)) {
        if (!nameOf(*group).isEmpty()) groups.push_back(nameOf(*group));
    }
    EXPECT_THAT(groups, ElementsAre("Keyboard", "Microphone Access", "Accessibility & Input Monitoring"));
}

TEST_F(SettingsLayout, SectionsAndSlidersAreNamedByTheirHeadings) {
    showSettings();
    std::vector<QString> headings;
    for (const QAccessibleInterface* const group : accessibles(*view, QAccessible::Grouping)) {
        const auto labels = group->relations(QAccessible::Label);
        if (labels.size() == 1) headings.push_back(nameOf(*labels.front().first));
    }
    EXPECT_THAT(headings,
                ElementsAre("LAYER:", "Select:", "HARDWARE TUNING", "Wireless Idle Sleep Timeout",
                            "Switch Debounce Time", "DEVICE SPECIFICATIONS", "MACOS SYSTEM PERMISSIONS & INTEGRATION"));
    const auto sliders = accessibles(*view, QAccessible::Slider);
    ASSERT_EQ(sliders.size(), 2U);
    EXPECT_EQ(nameOf(*sliders[1]), "Switch Debounce Time");
    EXPECT_EQ(sliders[1]->valueInterface()->currentValue().toDouble(), 4.0);
    EXPECT_EQ(sliders[1]->valueInterface()->maximumValue().toDouble(), 40.0);
    EXPECT_EQ(sliders[1]->valueInterface()->minimumStepSize().toDouble(), 10.0);
}

TEST_F(SettingsLayout, TheGearTellsWhatItOpens) {
    showSettings();
    const auto gears = accessibles(*view, QAccessible::PushButton);
    EXPECT_EQ(std::ranges::count(gears, QString("Open System Settings"),
                                 [](const QAccessibleInterface* each) { return nameOf(*each); }),
              2);
}

}  // namespace
}  // namespace lumo
