// The dot and the text that say how the keyboard is connected.
#include <gmock/gmock.h>

#include <array>

#include "app/ConnectionDot.h"
#include "app/HeaderBar.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"

namespace lumo {
namespace {

class ConnectionIndicator : public test::WindowFixture {
protected:
    void SetUp() override { show(); }

    QColor dotColor() {
        auto& dot = only<ConnectionDot>();
        return dot.grab().toImage().pixelColor(dot.dotRect().center());
    }

    /// Of the window, two points below the dot.
    std::array<int, 3> glowColor() {
        const QRect dot = only<ConnectionDot>().dotRect();
        const QPoint below = QPoint(dot.center().x(), dot.bottom() + 3) + rectOf(only<ConnectionDot>()).topLeft();
        const QColor color = view->grab().toImage().pixelColor(below);
        return {color.red(), color.green(), color.blue()};
    }
};

TEST_F(ConnectionIndicator, IsVioletWithoutAKeyboard) {
    EXPECT_EQ(dotColor(), QColor(87, 8, 212));
    EXPECT_EQ(connectionLine().text(), "Simulated / Disconnected");
}

TEST_F(ConnectionIndicator, TurnsGreenWithAKeyboardAndNamesIt) {
    connect();
    EXPECT_EQ(dotColor(), QColor(0x3D, 0xD6, 0x6E));
    EXPECT_EQ(connectionLine().text(), "Vexa Lumo 65 (Connected)");
}

TEST_F(ConnectionIndicator, GlowsInItsColor) {
    const auto isAbout = [](int level) { return testing::AllOf(testing::Ge(level - 5), testing::Le(level + 5)); };
    EXPECT_THAT(glowColor(), testing::ElementsAre(isAbout(49), isAbout(39), isAbout(73)));
    connect();
    EXPECT_THAT(glowColor(), testing::ElementsAre(isAbout(29), isAbout(48), isAbout(36)));
}

TEST_F(ConnectionIndicator, IsVioletAgainAfterAnUnplug) {
    connect();
    hid.unplugAll();
    time.settle();
    EXPECT_EQ(dotColor(), QColor(87, 8, 212));
    EXPECT_EQ(connectionLine().text(), "Simulated / Disconnected");
    EXPECT_EQ(statusLine().text(), "Keyboard disconnected. Running in preview mode.");
}

TEST_F(ConnectionIndicator, ShowsMarkUpInAProductNameAsItIs) {
    link();
    hid.plug({{0x258A, 0x010C}, 520, "<b>&amp;<img src=x>"});
    time.settle();
    EXPECT_EQ(connectionLine().text(), "<b>&amp;<img src=x> (Connected)");
}

TEST_F(ConnectionIndicator, DropsControlCharactersFromAProductName) {
    link();
    hid.plug({{0x258A, 0x010C}, 520, "Ve\nxa\x1b[31m \xE2\x80\xAELumo\x7F"});
    time.settle();
    EXPECT_EQ(connectionLine().text(), "Vexa[31m Lumo (Connected)");
}

TEST_F(ConnectionIndicator, AnEmptyProductNameLeavesTheRestOfTheText) {
    link();
    hid.plug({{0x258A, 0x010C}, 520, ""});
    time.settle();
    EXPECT_EQ(connectionLine().text(), " (Connected)");
}

TEST_F(ConnectionIndicator, ALongProductNameIsElidedAt220PointsAndStaysRightAligned) {
    link();
    hid.plug({{0x258A, 0x010C}, 520, std::string(300, 'W')});
    time.settle();
    const QRect text = rectOf(connectionLine());
    EXPECT_TRUE(connectionLine().isElided());
    EXPECT_LE(text.width(), 220);
    EXPECT_GT(text.width(), 220 - 20);  // not shorter by more than the letter that did not fit
    EXPECT_EQ(text.right() + 1, 960 - 16);
}

}  // namespace
}  // namespace lumo
