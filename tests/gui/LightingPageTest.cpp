// The lighting page's controls, used with mouse and keyboard.
#include <gmock/gmock.h>

#include <QTest>
#include <QWindow>

#include "controls/ColorWheel.h"
#include "controls/PushButton.h"
#include "controls/Slider.h"
#include "controls/SliderSection.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"
#include "keyboard/LevelsCard.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LightingPage : public test::WindowFixture {
protected:
    void SetUp() override {
        show();
        connect();
    }

    void click(const QString& name) {
        QTest::mouseClick(&control(name), Qt::LeftButton, {}, control(name).rect().center());
        time.settle();
    }
    Slider& brightness() { return *view->findChildren<Slider*>().at(0); }
    Slider& speed() { return *view->findChildren<Slider*>().at(1); }
    static QPoint knobAt(const Slider& slider, double value) {
        return QPointF(slider.knobX(value), slider.hitArea().center().y()).toPoint();
    }
    void drag(Slider& slider, const std::vector<double>& values) {
        QWindow* const window = view->windowHandle();
        const QPoint origin = rectOf(slider).topLeft();
        QTest::mousePress(window, Qt::LeftButton, {}, origin + knobAt(slider, values.front()));
        for (const double value : values) QTest::mouseMove(window, origin + knobAt(slider, value));
        QTest::mouseRelease(window, Qt::LeftButton, {}, origin + knobAt(slider, values.back()));
        time.settle();
    }
    /// Byte of every parameter block written, oldest first.
    std::vector<int> parameterBytes(std::size_t at) {
        std::vector<int> bytes;
        for (const auto& report : firmware.writes()) {
            if (report.at(1) == 0x04) bytes.push_back(report.at(at));
        }
        return bytes;
    }
    std::vector<QString> texts(SliderSection& section) {
        std::vector<QString> shown;
        for (const TextLine* const line : section.findChildren<TextLine*>()) {
            if (line->isVisible()) shown.push_back(line->text());
        }
        return shown;
    }
    SliderSection& section(int index) { return *view->findChildren<SliderSection*>().at(index); }
    std::ptrdiff_t keysOf(const Color& color) {
        return std::ranges::count(keyboard().keys.get(), color, &KeyCap::customColor);
    }
};

TEST_F(LightingPage, ShowsTheLevelsAsPercentAndByNumber) {
    EXPECT_THAT(texts(section(0)), ElementsAre("BRIGHTNESS", "100", "%"));
    EXPECT_THAT(texts(section(1)), ElementsAre("SPEED", "Level 2"));
    state().brightnessLevel.set(0.0);
    state().speedLevel.set(4.0);
    time.settle();
    EXPECT_THAT(texts(section(0)), ElementsAre("BRIGHTNESS", "0", "%"));
    EXPECT_THAT(texts(section(1)), ElementsAre("SPEED", "Level 4"));
}

TEST_F(LightingPage, ADragSendsTheOldValueWhenItStartsAndTheNewOneWhenItEnds) {
    drag(brightness(), {4.0, 3.0, 2.0, 1.0});
    EXPECT_THAT(parameterBytes(20), ElementsAre(4, 1));
    EXPECT_EQ(state().brightnessLevel.get(), 1.0);
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04, 0x8A, 0x0A, 0x84, 0x04));
}

TEST_F(LightingPage, TheBrightnessSlidersEndsAreLevels4And0) {
    drag(brightness(), {4.0, 0.0});
    EXPECT_THAT(parameterBytes(20), ElementsAre(4, 0));
    EXPECT_THAT(texts(section(0)), ElementsAre("BRIGHTNESS", "0", "%"));
    firmware.forgetWrites();
    drag(brightness(), {0.0, 4.0});
    EXPECT_THAT(parameterBytes(20), ElementsAre(0, 4));
    EXPECT_THAT(texts(section(0)), ElementsAre("BRIGHTNESS", "100", "%"));
}

TEST_F(LightingPage, AClickOnTheTrackIsAStartAndAnEnd) {
    QTest::mouseClick(&speed(), Qt::LeftButton, {}, knobAt(speed(), 4.0));
    time.settle();
    EXPECT_THAT(parameterBytes(19), ElementsAre(2, 4));
    EXPECT_EQ(state().speedLevel.get(), 4.0);
}

TEST_F(LightingPage, ThePreviewFollowsTheSliderWhileItIsDragged) {
    QWindow* const window = view->windowHandle();
    const QPoint origin = rectOf(brightness()).topLeft();
    QTest::mousePress(window, Qt::LeftButton, {}, origin + knobAt(brightness(), 4.0));
    QTest::mouseMove(window, origin + knobAt(brightness(), 2.0));
    EXPECT_EQ(state().brightnessLevel.get(), 2.0);
    QTest::mouseRelease(window, Qt::LeftButton, {}, origin + knobAt(brightness(), 2.0));
}

TEST_F(LightingPage, ASwatchIsSentWithTheEffect) {
    click("Sky blue");
    EXPECT_EQ(toBytes(state().selectedColor.get()), (ColorBytes{0, 210, 255}));
    const auto colors = firmware.lastWrite(0x0A);
    EXPECT_EQ(colors.at(9), 0);
    EXPECT_EQ(colors.at(10), 210);
    EXPECT_EQ(colors.at(11), 255);
    EXPECT_TRUE(control("Sky blue").isSelected());
    EXPECT_FALSE(control("Violet").isSelected());
}

TEST_F(LightingPage, TheRoomAroundASwatchIsNoButton) {
    QTest::mouseClick(&control("Sky blue"), Qt::LeftButton, {}, QPoint(1, 1));
    time.settle();
    EXPECT_EQ(state().selectedColor.get(), kDefaultColor);
}

TEST_F(LightingPage, ASwatchInThePerKeyEffectPaintsTheSelectionAndSendsNoMode) {
    link().activeModeId.set(21);
    keyboard().selectPresetGroup("WASD");
    click("Green");
    EXPECT_EQ(keysOf(Color::fromBytes({0, 255, 100})), 4);
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    firmware.forgetWrites();
    keyboard().selectedKeyIds.set({});
    click("Red");
    EXPECT_EQ(keysOf(Color::fromBytes({255, 20, 20})), 67);
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
}

TEST_F(LightingPage, AColorOfNoSwatchMarksNone) {
    state().selectedColor.set(Color{0.5, 0.5, 0.5});
    time.settle();
    EXPECT_FALSE(control("Violet").isSelected());
}

TEST_F(LightingPage, ThePickedColorDoesWhatASwatchDoes) {
    auto& wheel = only<ColorWheel>();
    const QPointF red(wheel.discRect().right() - 1.0, wheel.discRect().center().y());
    QTest::mouseClick(&wheel, Qt::LeftButton, {}, red.toPoint());
    time.settle();
    EXPECT_EQ(toBytes(state().selectedColor.get()).r, 255);
    EXPECT_LT(toBytes(state().selectedColor.get()).g, 10);
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04));
}

TEST_F(LightingPage, TheChosenColorPickedAgainPaintsTheNewSelection) {
    link().activeModeId.set(21);
    auto& wheel = only<ColorWheel>();
    const QPoint place = (wheel.discRect().center() + QPointF(40.0, 0.0)).toPoint();
    for (const std::string_view group : {"WASD", "Arrows"}) {
        keyboard().selectPresetGroup(group);
        QTest::mouseClick(&wheel, Qt::LeftButton, {}, place);
        time.settle();
    }
    EXPECT_EQ(keysOf(state().selectedColor.get()), 4 + 4);
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04, 0x09, 0x09, 0x06, 0x84, 0x04));
}

TEST_F(LightingPage, ADraggedWheelSendsAtMostFiveColorsASecondAndTheLastOne) {
    hid.unplugAll();  // a command to nobody takes no time: the clock below is the drag's alone
    time.settle();
    int picks = 0;
    const auto subscription = state().observe([&picks] { ++picks; });
    auto& wheel = only<ColorWheel>();
    const QPointF centre = wheel.discRect().center() + rectOf(wheel).topLeft();
    QWindow* const window = view->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, centre.toPoint());
    for (int i = 1; i <= 60; ++i) {
        QTest::mouseMove(window, (centre + QPointF(i, 0)).toPoint());
        time.advance(std::chrono::milliseconds(16));
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, (centre + QPointF(60, 0)).toPoint());
    time.settle();
    EXPECT_EQ(picks, 6);  // at once, after 200, 400, 600 and 800 ms, and on release
    EXPECT_EQ(link().primaryColor.get(), toBytes(state().selectedColor.get()));
    EXPECT_LT(link().primaryColor.get().g, 110);  // where the pointer was let go, near the rim
}

TEST_F(LightingPage, TheToolsHaveTheirSymbols) {
    const auto expectSymbol = [this](const QString& text, const ButtonLook& look, const QString& symbol) {
        PushControl& shown = control(text);
        PushButton same(text, look, nullptr);
        same.setSymbol(symbol);
        same.resize(shown.size());
        const QRect inside = shown.rect().adjusted(4, 4, -4, -4);  // a button of its own has a ground at its corners
        const auto pixels = [&inside](QWidget& button) {
            return button.grab(inside).toImage().convertToFormat(QImage::Format_RGB32);
        };
        EXPECT_EQ(pixels(shown), pixels(same)) << symbol.toStdString();
    };
    expectSymbol("Paint Selected (0)", look::kPrimary, "paintbrush.fill");
    expectSymbol("Rainbow Preset", look::kPlain, "rainbow");
    expectSymbol("Fill All", look::kPlain, "");
}

TEST_F(LightingPage, PaintSelectedCountsAndPaints) {
    keyboard().selectPresetGroup("Arrows");
    time.settle();
    state().selectedColor.set(Color{0.0, 1.0, 0.0});
    click("Paint Selected (4)");
    EXPECT_EQ(keysOf(Color{0.0, 1.0, 0.0}), 4);
    EXPECT_EQ(link().activeModeId.get(), 21);
    EXPECT_EQ(statusLine().text(), "Custom Per-Key RGB Synchronized (67 keys)");
}

TEST_F(LightingPage, NothingSelectedIsPaintedAllTheSame) {
    click("Paint Selected (0)");
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    EXPECT_EQ(link().activeModeId.get(), 21);
}

TEST_F(LightingPage, FillAllSelectsAndPaintsEveryKey) {
    click("Fill All");
    EXPECT_EQ(keyboard().selectedKeyIds.get().size(), 67U);
    EXPECT_EQ(control("Paint Selected (67)").text(), "Paint Selected (67)");
    EXPECT_THAT(selectedNames(), ElementsAre("Self-define (Per-Key RGB)"));
}

TEST_F(LightingPage, TheRainbowPaintsFromAnyEffect) {
    click("Rainbow Preset");
    EXPECT_EQ(keyboard().keys.get().front().customColor, (Color{1.0, 0.0, 0.0}));
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    EXPECT_THAT(selectedNames(), ElementsAre("Self-define (Per-Key RGB)"));
}

TEST_F(LightingPage, LeavingThePageInTheMiddleOfAKeyUseEndsIt) {
    brightness().setFocus(Qt::TabFocusReason);
    QTest::keyPress(&brightness(), Qt::Key_Left);
    EXPECT_EQ(state().brightnessLevel.get(), 3.0);
    state().currentTab.set(NavTab::macro);
    time.settle();
    EXPECT_THAT(parameterBytes(20), ElementsAre(4, 3));
}

}  // namespace
}  // namespace lumo
