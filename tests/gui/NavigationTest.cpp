// Pages and profiles: what the buttons at the top of the window do.
#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "app/NaviPillButton.h"
#include "app/PageArea.h"
#include "controls/ColorWheel.h"
#include "controls/TextLine.h"
#include "gui/CurrentFolder.h"
#include "gui/WindowFixture.h"
#include "keyboard/KeyboardCanvas.h"
#include "keyboard/LightingControlView.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Navigation : public test::WindowFixture {
protected:
    void SetUp() override { show(); }

    void click(const QString& name) {
        QTest::mouseClick(&control(name), Qt::LeftButton);
        time.settle();
    }
    std::vector<QString> selected(QStringList names) {
        std::vector<QString> found;
        for (const QString& name : names) {
            if (control(name).isSelected()) found.push_back(name);
        }
        return found;
    }
    std::vector<QString> selectedProfiles() { return selected({"Profile 1", "Profile 2", "Profile 3"}); }
    std::vector<QString> selectedTabs() {
        return selected({"Key Assignment", "Lighting Effect", "Macro Manager", "Music Visualizer", "Device Settings"});
    }
    LightingControlView* lightingPage() {
        const auto pages = view->findChildren<LightingControlView*>();
        const auto shown = std::ranges::find_if(pages, &QWidget::isVisible);
        return shown == pages.end() ? nullptr : *shown;
    }
};

TEST_F(Navigation, AFreshWindowShowsTheLightingPageAndTheFirstProfile) {
    EXPECT_THAT(selectedTabs(), ElementsAre("Lighting Effect"));
    EXPECT_THAT(selectedProfiles(), ElementsAre("Profile 1"));
    EXPECT_NE(lightingPage(), nullptr);
}

TEST_F(Navigation, ControlAndADigitChooseThePageOfThatNumber) {
    QApplication::setActiveWindow(view.get());
    for (const NavTab tab : {NavTab::settings, NavTab::music, NavTab::macro, NavTab::keyAssign, NavTab::lighting}) {
        QTest::keyClick(view.get(), static_cast<Qt::Key>(Qt::Key_0 + static_cast<int>(tab)), Qt::ControlModifier);
        time.settle();
        EXPECT_EQ(state().currentTab.get(), tab);
    }
    EXPECT_THAT(selectedTabs(), ElementsAre("Lighting Effect"));
}

TEST_F(Navigation, ADigitAloneOrAnotherOneChoosesNothing) {
    QApplication::setActiveWindow(view.get());
    QTest::keyClick(view.get(), Qt::Key_1);
    QTest::keyClick(view.get(), Qt::Key_6, Qt::ControlModifier);
    QTest::keyClick(view.get(), Qt::Key_0, Qt::ControlModifier);
    time.settle();
    EXPECT_EQ(state().currentTab.get(), NavTab::lighting);
}

TEST_F(Navigation, APillChoosesItsPageAndNothingElse) {
    const std::string status = link().statusMessage.get();
    click("Macro Manager");
    EXPECT_EQ(state().currentTab.get(), NavTab::macro);
    EXPECT_THAT(selectedTabs(), ElementsAre("Macro Manager"));
    EXPECT_EQ(lightingPage(), nullptr);
    EXPECT_EQ(link().statusMessage.get(), status);
}

TEST_F(Navigation, TheKeyboardStandsAboveEveryPage) {
    for (const QString name : {"Key Assignment", "Macro Manager", "Music Visualizer", "Device Settings"}) {
        click(name);
        EXPECT_TRUE(only<KeyboardCanvas>().isVisible()) << name.toStdString();
    }
}

TEST_F(Navigation, LeavingThePageAndReturningLosesNothing) {
    state().brightnessLevel.set(1.0);
    link().activeModeId.set(7);
    click("Device Settings");
    click("Lighting Effect");
    ASSERT_NE(lightingPage(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(selectedNames(), ElementsAre("Ripples_shining"));
    EXPECT_EQ(view->findChildren<LightingControlView*>().size(), 1);
}

TEST_F(Navigation, AProfileChangesTheSelectionAndTheStatusOnly) {
    connect();
    const std::int64_t effect = link().activeModeId.get();
    click("Profile 2");
    EXPECT_EQ(state().activeProfile.get(), 2);
    EXPECT_THAT(selectedProfiles(), ElementsAre("Profile 2"));
    EXPECT_EQ(statusLine().text(), "Switched to Profile 2");
    EXPECT_THAT(commandsSent(), IsEmpty());
    EXPECT_EQ(link().activeModeId.get(), effect);
}

TEST_F(Navigation, TheSelectedProfileRewritesTheStatus) {
    link().statusMessage.set("something else");
    time.settle();
    click("Profile 1");
    EXPECT_EQ(statusLine().text(), "Switched to Profile 1");
    EXPECT_EQ(state().activeProfile.get(), 1);
}

TEST_F(Navigation, AProfileChosenFromElsewhereIsShown) {
    state().activeProfile.set(3);
    time.settle();
    EXPECT_THAT(selectedProfiles(), ElementsAre("Profile 3"));
}

TEST_F(Navigation, WithoutAKeyboardTheIndicatorSaysSo) {
    EXPECT_EQ(connectionLine().text(), "Simulated / Disconnected");
    connect();
    hid.unplugAll();
    time.settle();
    EXPECT_EQ(connectionLine().text(), "Simulated / Disconnected");
    EXPECT_EQ(statusLine().text(), "Keyboard disconnected. Running in preview mode.");
}

class NavigationWithoutArtwork : public test::LinkFixture {
protected:
    QTemporaryDir empty;
    test::CurrentFolder here{empty.path()};
};

TEST_F(NavigationWithoutArtwork, APillShowsItsSymbolAndWorks) {
    NaviPillButton pill(
        NavTab::music, false, [this] { state().currentTab.set(NavTab::music); }, nullptr);
    pill.resize(183, 30);
    const QImage picture = pill.grab().toImage();
    int bright = 0;
    for (int x = 10; x < 50; ++x) bright += picture.pixelColor(x, 15).lightness() > 120 ? 1 : 0;
    EXPECT_GE(bright, 3);
    QTest::mouseClick(&pill, Qt::LeftButton);
    EXPECT_EQ(state().currentTab.get(), NavTab::music);
}

TEST_F(NavigationWithoutArtwork, KeyboardAndWheelShowThePicturesOfThatFolder) {
    QImage teal(30, 30, QImage::Format_RGB32);
    teal.fill(Qt::darkCyan);
    ASSERT_TRUE(QDir().mkpath(empty.filePath("assets")));
    ASSERT_TRUE(teal.save(empty.filePath("assets/keyimg.png")));
    ASSERT_TRUE(teal.save(empty.filePath("assets/colorwheel.png")));
    link().activeModeId.set(0);
    MainView view(nullptr);
    view.resize(960, 760);
    const QImage keys = view.findChild<KeyboardCanvas*>()->grab().toImage();
    for (const QPoint corner : {QPoint(0, 0), QPoint(649, 0), QPoint(0, 246), QPoint(649, 246)}) {
        EXPECT_EQ(keys.pixelColor(corner), QColor(Qt::darkCyan));
    }
    auto& wheel = *view.findChild<ColorWheel*>();
    EXPECT_EQ(wheel.grab().toImage().pixelColor(wheel.discRect().center().toPoint()), QColor(Qt::darkCyan));
}

TEST_F(NavigationWithoutArtwork, TheWholeWindowIsUsable) {
    QAction quit("Quit");
    MainView view(&quit);
    view.resize(960, 760);
    const QImage picture = view.grab().toImage();
    EXPECT_NE(picture.pixelColor(565, 600), QColor(0x21, 0x21, 0x23));  // the wheel
    EXPECT_NE(picture.pixelColor(20, 200), QColor(0x1A, 0x1A, 0x1A));   // the keyboard's case
}

}  // namespace
}  // namespace lumo
