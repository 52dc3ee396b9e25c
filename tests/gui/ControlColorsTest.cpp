// The colours that tell the chosen profile, page, layer and swatch from the others.
#include <gtest/gtest.h>

#include <algorithm>

#include "controls/PushControl.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"

namespace lumo {
namespace {

constexpr QColor kViolet{87, 8, 212};

class ControlColors : public test::WindowFixture {
protected:
    void SetUp() override { show(); }

    QImage pictureOf(const QString& name) { return view->grab(rectOf(control(name))).toImage(); }
    QColor middleOf(const QString& name) { return pictureOf(name).pixelColor(control(name).rect().center()); }
    /// Left of the text.
    QColor fillOf(const QString& name) { return pictureOf(name).pixelColor(4, control(name).height() / 2); }
    /// The least of the channels where it is greatest: that of grey letters, whatever they stand on.
    static int whitestOf(const QImage& picture) {
        int whitest = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                whitest = std::max(whitest, std::min({color.red(), color.green(), color.blue()}));
            }
        }
        return whitest;
    }
    int titleOf(const QString& page) {
        constexpr int kTitleX = 60;  // right of the symbol
        return whitestOf(pictureOf(page).copy(control(page).rect().adjusted(kTitleX, 0, 0, 0)));
    }
    /// White at a share over a grey.
    static double whiteOver(int grey, double share) { return grey + share * (0xFF - grey); }
};

TEST_F(ControlColors, TheActiveProfileIsVioletAndTheOthersHaveGreyLabelsOnDark) {
    EXPECT_EQ(fillOf("Profile 1"), kViolet);
    EXPECT_GT(whitestOf(pictureOf("Profile 1")), 0xD0);
    for (const QString name : {"Profile 2", "Profile 3"}) {
        EXPECT_EQ(fillOf(name), QColor(0x24, 0x24, 0x27));
        EXPECT_NEAR(whitestOf(pictureOf(name)), 0x99, 6);
    }
}

TEST_F(ControlColors, TheSelectedPageHasAWhiteTitleAndTheOthersOneOfWhiteAt65Percent) {
    EXPECT_GT(titleOf("Lighting Effect"), 0xD8);
    for (const QString name : {"Key Assignment", "Macro Manager", "Music Visualizer", "Device Settings"}) {
        EXPECT_NEAR(titleOf(name), whiteOver(0x15, 0.65), 8.0);
    }
}

TEST_F(ControlColors, TheChosenLayerIsVioletAndTheOthersFaintlyWhite) {
    EXPECT_EQ(fillOf("Default"), kViolet);
    for (const QString name : {"FN1", "FN2", "Tap"}) {
        EXPECT_NEAR(fillOf(name).red(), whiteOver(0x1A, 0.07), 1.0);
        EXPECT_NEAR(fillOf(name).blue(), whiteOver(0x1A, 0.07), 1.0);
    }
}

TEST_F(ControlColors, TheConnectionIsToldInWhiteAt75Percent) {
    EXPECT_NEAR(whitestOf(view->grab(rectOf(connectionLine())).toImage()), whiteOver(0x1A, 0.75), 8.0);
}

TEST_F(ControlColors, ASwatchShowsTheColorThatItChooses) {
    EXPECT_EQ(middleOf("Violet"), kViolet);
    EXPECT_EQ(middleOf("Sky blue"), QColor(0, 210, 255));
    EXPECT_EQ(middleOf("Pink"), QColor(255, 0, 120));
    EXPECT_EQ(middleOf("Green"), QColor(0, 255, 100));
    EXPECT_EQ(middleOf("Yellow"), QColor(255, 200, 0));
    EXPECT_EQ(middleOf("Orange"), QColor(255, 60, 0));
    EXPECT_EQ(middleOf("Red"), QColor(255, 20, 20));
    EXPECT_EQ(middleOf("White"), QColor(242, 242, 242));
}

}  // namespace
}  // namespace lumo
