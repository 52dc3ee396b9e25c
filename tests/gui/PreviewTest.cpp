// The on-screen keyboard's light: what it takes from the link, from the interface and from the clock.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <vector>

#include "gui/CurrentFolder.h"
#include "keyboard/KeyboardCanvas.h"
#include "keyboard/KeyboardPicture.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

class Preview : public test::LinkFixture {
protected:
    QTemporaryDir withoutArtwork;
    test::CurrentFolder here{withoutArtwork.path()};
    double now = 12.5;
    KeyboardCanvas canvas{link(), state(), keyboard(), time.mainQueue(), [this] { return now; }, nullptr};

    QImage shown() {
        time.settle();
        return canvas.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    QImage expected(std::int64_t mode, double moment, ColorBytes base, double brightness, double speed) {
        std::vector<KeyLook> looks;
        for (const KeyCap& key : keyboard().keys.get()) {
            looks.push_back({LightingEngine::color(key, mode, moment, base, brightness, speed)});
        }
        KeyboardPicture picture(keyboard().keys.get(), [] { return QImage(); });
        picture.compose(looks);
        QImage image(canvas.size(), QImage::Format_RGB32);
        QPainter painter(&image);
        picture.paint(painter, QPointF(), canvas.rect());
        return image;
    }
};

TEST_F(Preview, BeginsWithTheFirstEffectInVioletAtTheFirstLevels) {
    EXPECT_EQ(shown(), expected(4, 12.5, {87, 8, 212}, 4.0, 2.0));
}

TEST_F(Preview, ShowsTheActiveEffectInTheLastColorSentAtTheLevelsChosen) {
    link().activeModeId.set(17);
    state().brightnessLevel.set(3.0);
    state().speedLevel.set(1.0);
    EXPECT_EQ(shown(), expected(17, 12.5, {87, 8, 212}, 3.0, 1.0));
    link().setLightingMode(7, 0, 0, ColorBytes{0, 210, 255});
    EXPECT_EQ(shown(), expected(7, 12.5, {0, 210, 255}, 3.0, 1.0));
}

TEST_F(Preview, ShowsTheKeysOwnColorsInThePerKeyEffect) {
    link().activeModeId.set(21);
    keyboard().applyRainbowPreset();
    EXPECT_EQ(shown(), expected(21, 0.0, {}, 4.0, 2.0));
}

TEST_F(Preview, TakesTheTimeOfEachFrameFromTheClock) {
    now = 785000000.25;
    link().activeModeId.set(6);
    EXPECT_EQ(shown(), expected(6, 785000000.25, {}, 4.0, 2.0));
}

TEST_F(Preview, IsTheSameWithAndWithoutAKeyboard) {
    connect();
    const QImage connected = shown();
    hid.unplugAll();
    EXPECT_EQ(shown(), connected);
}

}  // namespace
}  // namespace lumo
