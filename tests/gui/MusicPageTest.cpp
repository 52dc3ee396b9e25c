// The music page's controls, used with mouse and keyboard.
#include <gmock/gmock.h>

#include <QApplication>
#include <QWindow>

#include "audio/MicrophoneNotice.h"
#include "audio/MusicModeTile.h"
#include "controls/TextBlock.h"
#include "controls/TextLine.h"
#include "gui/EventCount.h"
#include "gui/MusicFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class MusicPage : public test::MusicFixture {
protected:
    static constexpr int kFillX = 4;
    std::vector<QString> tiles() {
        std::vector<QString> names;
        for (const MusicModeTile* const tile : view->findChildren<MusicModeTile*>()) names.push_back(tile->text());
        return names;
    }
    std::vector<QString> selectedTiles() {
        std::vector<QString> names;
        for (const MusicModeTile* const tile : view->findChildren<MusicModeTile*>()) {
            if (tile->isSelected()) names.push_back(tile->text());
        }
        return names;
    }
    std::vector<QString> texts() {
        std::vector<QString> shown;
        for (const TextLine* const line : view->findChildren<TextLine*>()) {
            if (line->isVisible()) shown.push_back(line->text());
        }
        return shown;
    }
    struct ToggleLook {
        QColor ground;  // beside it
        QColor fill;
        QColor dot;
    };
    ToggleLook toggleLook(const QString& name) {
        const QRect toggle = rectOf(control(name));
        const QImage picture = view->grab().toImage();
        const int y = toggle.center().y();
        const auto at = [&](int x) { return picture.pixelColor(toggle.left() + x, y); };
        int dot = kFillX;  // what is drawn first from the left
        while (dot < toggle.width() && at(dot) == at(kFillX)) ++dot;
        constexpr int kToMiddleOfDot = 4;
        return {at(-4), at(kFillX), at(dot + kToMiddleOfDot)};
    }
    double barHeight(double level) {
        BandLevels levels{};
        levels.fill(level);
        engine().frequencyLevels.set(levels);
        turn();
        return bars().barRect(0).height();
    }
    void drag(Slider& slider, double from, int by) {
        QWindow* const window = view->windowHandle();
        const QPoint knob =
            rectOf(slider).topLeft() + QPointF(slider.knobX(from), slider.hitArea().center().y()).toPoint();
        QTest::mousePress(window, Qt::LeftButton, {}, knob);
        for (int step = 1; step <= 10; ++step) QTest::mouseMove(window, knob + QPoint(by * step / 10, 0));
        QTest::mouseRelease(window, Qt::LeftButton, {}, knob + QPoint(by, 0));
        turn();
    }
};

TEST_F(MusicPage, ListsTheTenModesAndMarksTheActiveOne) {
    showMusic();
    EXPECT_THAT(tiles(),
                ElementsAre("Audio dance - soft", "Dazzling - rock", "Clouds rise and snow fly - routine",
                            "Light Field Change - voice", "The gurgling stream - regular", "Blooming - passion",
                            "Pearl falling jade plate - rock", "Clouds follow the moon - passion",
                            "Mountains and Flowing Waters - regular", "Raining like silk - regular"));
    EXPECT_THAT(selectedTiles(), ElementsAre("Audio dance - soft"));
    state().activeMusicMode.set(10);
    turn();
    EXPECT_THAT(selectedTiles(), ElementsAre("Raining like silk - regular"));
    state().activeMusicMode.set(11);
    turn();
    EXPECT_THAT(selectedTiles(), IsEmpty());
}

TEST_F(MusicPage, ShowsItsTexts) {
    showMusic();
    EXPECT_THAT(texts(), Contains("AUDIO REACTIVE EQUALIZER (MODE 17)"));
    EXPECT_THAT(texts(), Contains("Internal Rhythm Generator"));
    EXPECT_THAT(texts(), Contains("MUSIC EFFECT MODES"));
    EXPECT_THAT(texts(), Contains("2.5x"));
    EXPECT_THAT(texts(), Contains("3.0"));
    EXPECT_THAT(texts(), Contains("0"));
    EXPECT_THAT(texts(), Contains("15"));
    std::vector<QString> blocks;
    for (const TextBlock* const block : view->findChildren<TextBlock*>()) blocks.push_back(block->text());
    EXPECT_THAT(blocks, Contains("Streams 382-byte spectrum frames directly to keyboard hMusic endpoint "
                                 "(FUN_0048ca30)."));
}

TEST_F(MusicPage, TheToggleStartsAndStopsTheStreamAndSaysSo) {
    showMusic();
    click("STREAM: OFF");
    EXPECT_TRUE(engine().isRunning.get());
    EXPECT_TRUE(has("STREAMING: ON"));
    EXPECT_FALSE(has("STREAM: OFF"));
    click("STREAMING: ON");
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_TRUE(has("STREAM: OFF"));
}

TEST_F(MusicPage, WithARefusedMicrophoneTheToggleStartsNothingAndAModeDoes) {
    showMusic();
    setMicrophone(AudioAuthorization::denied);
    click("STREAM: OFF");
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_TRUE(has("STREAM: OFF"));
    click("Blooming - passion");
    EXPECT_TRUE(engine().isRunning.get());
    EXPECT_TRUE(has("STREAMING: ON"));
}

TEST_F(MusicPage, ChoosingAModeMarksItNamesItAndMarksBlossomingOnTheLightingPage) {
    connect();
    showMusic();
    click("Dazzling - rock");
    EXPECT_EQ(state().activeMusicMode.get(), 2);
    EXPECT_THAT(selectedTiles(), ElementsAre("Dazzling - rock"));
    EXPECT_EQ(statusLine().text(), "Music reactive mode: Dazzling - rock");
    EXPECT_EQ(link().activeModeId.get(), 17);
    EXPECT_THAT(firmware.writes(), IsEmpty());
    state().currentTab.set(NavTab::lighting);
    turn();
    EXPECT_THAT(selectedNames(), ElementsAre("Blossoming"));
}

TEST_F(MusicPage, TheNoticeSaysWhatIsMissingBesideItsSymbol) {
    showMusic();
    setMicrophone(AudioAuthorization::denied);
    auto& notice = only<MicrophoneNotice>();
    EXPECT_EQ(notice.findChild<TextBlock*>()->text(), "Microphone permission required for live spectrum sampling.");
    const QImage picture = notice.grab().toImage();
    const QColor ground = picture.pixelColor(8, notice.height() / 2);
    int drawn = 0;
    for (int x = 14; x < 34; ++x) drawn += picture.pixelColor(x, notice.height() / 2) != ground ? 1 : 0;
    EXPECT_GT(drawn, 4);
}

TEST_F(MusicPage, TheToggleAtRestIsFaintlyWhiteWithAGreyDot) {
    showMusic();
    const ToggleLook look = toggleLook("STREAM: OFF");
    const auto over = [](int ground) { return ground + 0.1 * (0xFF - ground); };
    EXPECT_NEAR(look.fill.red(), over(look.ground.red()), 1.0);
    EXPECT_NEAR(look.fill.blue(), over(look.ground.blue()), 1.0);
    EXPECT_EQ(look.dot, QColor(0x9A, 0x9A, 0xA0));
}

TEST_F(MusicPage, TheToggleOfARunningStreamIsCyanOf70PercentWithAGreenDot) {
    engine().start();
    showMusic();
    const ToggleLook look = toggleLook("STREAMING: ON");
    const auto over = [](int ground, int color) { return ground + 0.7 * (color - ground); };
    EXPECT_NEAR(look.fill.red(), over(look.ground.red(), 0x2C), 1.0);
    EXPECT_NEAR(look.fill.green(), over(look.ground.green(), 0xC9), 1.0);
    EXPECT_NEAR(look.fill.blue(), over(look.ground.blue(), 0xEE), 1.0);
    EXPECT_EQ(look.dot, QColor(0x22, 0xE0, 0x6A));
}

TEST_F(MusicPage, TheNoticeIsThereWhileTheMicrophoneIsNotAllowed) {
    showMusic();
    EXPECT_FALSE(has("Grant Access"));
    setMicrophone(AudioAuthorization::notDetermined);
    EXPECT_TRUE(has("Grant Access"));
    click("Grant Access");
    EXPECT_THAT(platform.journal, ElementsAre("request audio"));
    platform.grants.answerMicrophone(true);
    turn();
    turn();
    EXPECT_FALSE(has("Grant Access"));
    EXPECT_FALSE(engine().isRunning.get());
}

TEST_F(MusicPage, ABarIs80PointsOfItsLevelAndAtLeast6) {
    showMusic();
    EXPECT_DOUBLE_EQ(barHeight(0.05), 6.0);
    EXPECT_DOUBLE_EQ(barHeight(0.075), 6.0);
    EXPECT_DOUBLE_EQ(barHeight(0.1), 8.0);
    EXPECT_DOUBLE_EQ(barHeight(0.5), 40.0);
    EXPECT_DOUBLE_EQ(barHeight(1.0), 80.0);
    EXPECT_DOUBLE_EQ(bars().barRect(0).bottom(), 80.0);
    EXPECT_DOUBLE_EQ(bars().barRect(15).width(), 14.0);
}

TEST_F(MusicPage, BarsAreVioletWhileTheStreamRunsAndGreyAtRest) {
    showMusic();
    (void)barHeight(1.0);
    const auto colorAt = [this](int y) { return bars().grab().toImage().pixelColor(9, y); };
    EXPECT_LT(colorAt(1).blue() - colorAt(1).red(), 12);
    click("STREAM: OFF");
    (void)barHeight(1.0);
    EXPECT_GT(colorAt(1).blue(), 245);
    EXPECT_NEAR(colorAt(78).red(), 0x58, 4);
    EXPECT_NEAR(colorAt(78).blue(), 0xD4, 4);
}

TEST_F(MusicPage, TheEqualizerIsPaintedOncePerTickWhileItRunsAndNotAtRest) {
    showMusic();
    test::EventCount paints(bars(), QEvent::Paint);
    const auto paintsOf = [&](Duration during) {
        paints.forget();
        for (Duration passed{0}; passed < during; passed += 33ms) {
            time.advance(33ms);
            QApplication::sendPostedEvents();
            QApplication::processEvents();
        }
        return paints.count();
    };
    EXPECT_EQ(paintsOf(990ms), 0);
    click("STREAM: OFF");
    EXPECT_THAT(paintsOf(990ms), testing::AllOf(testing::Ge(29), testing::Le(31)));
    click("STREAMING: ON");
    QApplication::processEvents();
    EXPECT_EQ(paintsOf(990ms), 0);
}

TEST_F(MusicPage, NothingOfTheEqualizerIsPaintedOnAnotherPage) {
    showMusic();
    click("STREAM: OFF");
    state().currentTab.set(NavTab::lighting);
    turn();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(view->findChildren<EqualizerBars*>().isEmpty());
    EXPECT_TRUE(engine().isRunning.get());
}

TEST_F(MusicPage, TheStreamGoesOnWithoutThePageAndIsFoundRunning) {
    showMusic();
    click("STREAM: OFF");
    state().currentTab.set(NavTab::lighting);
    time.advance(1s);
    EXPECT_TRUE(engine().isRunning.get());
    state().currentTab.set(NavTab::music);
    turn();
    EXPECT_TRUE(has("STREAMING: ON"));
}

TEST_F(MusicPage, ShowingThePageStartsNothing) {
    showMusic();
    time.advance(1s);
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_THAT(platform.journal, IsEmpty());
}

TEST_F(MusicPage, TheSlidersStoreTheirValuesBetween1And5) {
    connect();
    showMusic();
    drag(slider(0), 2.5, 200);
    EXPECT_EQ(state().musicGain.get(), 5.0);
    EXPECT_THAT(texts(), Contains("5.0x"));
    drag(slider(0), 5.0, -300);
    EXPECT_EQ(state().musicGain.get(), 1.0);
    EXPECT_THAT(texts(), Contains("1.0x"));
    drag(slider(1), 3.0, -160);
    EXPECT_EQ(state().musicSmooth.get(), 1.0);
    EXPECT_THAT(texts(), Contains("1.0"));
    drag(slider(1), 1.0, 240);
    EXPECT_EQ(state().musicSmooth.get(), 5.0);
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(MusicPage, TheSlidersMoveInStepsOfAHalf) {
    showMusic();
    slider(0).setFocus(Qt::TabFocusReason);
    std::vector<double> gains;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(&slider(0), Qt::Key_Right);
        gains.push_back(state().musicGain.get());
    }
    EXPECT_THAT(gains, ElementsAre(3.0, 3.5, 4.0, 4.5, 5.0, 5.0));
    QTest::keyClick(&slider(0), Qt::Key_Home);
    QTest::keyClick(&slider(0), Qt::Key_Left);
    EXPECT_EQ(state().musicGain.get(), 1.0);
}

TEST_F(MusicPage, CanBeUsedByTheKeyboardAlone) {
    state().currentTab.set(NavTab::music);
    showActive();
    setMicrophone(AudioAuthorization::denied);
    std::vector<QString> stops;
    control("WASD").setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        stops.push_back(QApplication::focusWidget()->accessibleName());
    }
    EXPECT_THAT(stops, ElementsAre("STREAM: OFF", "Grant Access", "Audio dance - soft", "GAIN FACTOR", "SMOOTHNESS"));
    control("Audio dance - soft").setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_TRUE(control("Blooming - passion").hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(control("Pearl falling jade plate - rock").hasFocus());
    EXPECT_EQ(state().activeMusicMode.get(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(state().activeMusicMode.get(), 7);
    EXPECT_TRUE(engine().isRunning.get());
}

TEST_F(MusicPage, AGrantThatTakesTheNoticeAwayHandsItsFocusToTheToggle) {
    state().currentTab.set(NavTab::music);
    showActive();
    setMicrophone(AudioAuthorization::denied);
    turn();
    control("Grant Access").setFocus(Qt::MouseFocusReason);
    setMicrophone(AudioAuthorization::authorized);
    turn();
    EXPECT_TRUE(control("STREAM: OFF").hasFocus());
    EXPECT_FALSE(control("STREAM: OFF").showsRing());
}

TEST_F(MusicPage, AGrantGivenInAnotherWindowHandsTheFocusOnAsWell) {
    state().currentTab.set(NavTab::music);
    showActive();
    setMicrophone(AudioAuthorization::denied);
    turn();
    control("Grant Access").setFocus(Qt::TabFocusReason);
    leaveFor([this] {
        setMicrophone(AudioAuthorization::authorized);
        turn();
    });
    EXPECT_TRUE(control("STREAM: OFF").hasFocus());
    EXPECT_TRUE(control("STREAM: OFF").showsRing());
}

}  // namespace
}  // namespace lumo
