// Where things stand, at the window's usual size, its smallest and a large one.
#include <gmock/gmock.h>

#include "app/BrandButton.h"
#include "app/ConnectionDot.h"
#include "app/HeaderBar.h"
#include "app/StatusBar.h"
#include "controls/Card.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

class Layout : public test::WindowFixture {
protected:
    QRect rowRect(std::size_t index) { return rectOf(*rows().at(index)); }
};

TEST_F(Layout, TheUsualWindowHasRowsOf31Points) {
    show({960, 760});
    EXPECT_EQ(rectOf(only<HeaderBar>()), QRect(0, 0, 960, 45));
    EXPECT_EQ(rectOf(only<Card>()), QRect(16, 340, 928, 380));
    EXPECT_EQ(rectOf(only<StatusBar>()), QRect(0, 732, 960, 28));
    EXPECT_EQ(rowRect(0), QRect(28, 376, 448, 31));
    EXPECT_EQ(rowRect(1), QRect(28, 409, 448, 31));
    EXPECT_EQ(rowRect(9), QRect(28, 673, 448, 31));
    EXPECT_EQ(rowRect(10), QRect(484, 376, 448, 31));
    EXPECT_EQ(rowRect(19), QRect(484, 673, 448, 31));
}

TEST_F(Layout, TheSmallestWindowHasRowsOf24PointsInsideTheCard) {
    show({900, 680});
    EXPECT_EQ(rectOf(only<Card>()), QRect(16, 340, 868, 300));
    EXPECT_EQ(rectOf(only<StatusBar>()), QRect(0, 652, 900, 28));
    EXPECT_EQ(rowRect(0), QRect(28, 376, 418, 24));
    EXPECT_EQ(rowRect(10), QRect(454, 376, 418, 24));
    EXPECT_EQ(rowRect(9), QRect(28, 610, 418, 24));
}

TEST_F(Layout, ALargeWindowCentresItsColumnAndStopsAtRowsOf34Points) {
    show({1360, 860});
    EXPECT_EQ(rectOf(only<HeaderBar>()), QRect(0, 0, 1360, 45));
    EXPECT_EQ(rectOf(only<Card>()), QRect(160, 340, 1040, 480));
    EXPECT_EQ(rowRect(0), QRect(172, 376, 504, 34));
    EXPECT_EQ(rowRect(19), QRect(684, 700, 504, 34));
}

TEST_F(Layout, AWindowThatIsResizedIsLaidOutAnew) {
    show({960, 760});
    view->resize(900, 680);
    EXPECT_EQ(rectOf(only<Card>()), QRect(16, 340, 868, 300));
    EXPECT_EQ(rowRect(0), QRect(28, 376, 418, 24));
}

TEST_F(Layout, NothingStandsInTheRowsBetweenHeaderAndPage) {
    show();
    for (int x = 0; x < 960; x += 8) {
        for (int y = 45; y < 340; y += 8) ASSERT_EQ(view->childAt(x, y), nullptr) << x << ", " << y;
    }
}

TEST_F(Layout, NoEffectNameIsElidedInTheSmallestWindow) {
    show({900, 680});
    for (const EffectRow* const row : rows())
        EXPECT_LE(row->sizeHint().width(), row->width()) << row->text().toStdString();
}

TEST_F(Layout, TheConnectionIsRightAlignedWithItsDotToTheLeft) {
    show();
    const QRect text = rectOf(connectionLine());
    EXPECT_EQ(text.right() + 1, 960 - 16);
    EXPECT_NEAR(text.center().y(), 22, 1);
    const auto& dot = only<ConnectionDot>();
    const QRect dotRect = dot.dotRect().translated(rectOf(dot).topLeft());
    EXPECT_EQ(dotRect.size(), QSize(8, 8));
    EXPECT_EQ(dotRect.right() + 1, text.left() - 8);
    EXPECT_EQ(dotRect.center().y(), 21);
}

#ifndef Q_OS_MACOS
TEST_F(Layout, TheHeaderBeginsWithTheHexagonAtTheWindowMargin) {
    show();
    EXPECT_EQ(rectOf(only<BrandButton>()).center(), QRect(16, 12, 20, 20).center());
}
#endif

}  // namespace
}  // namespace lumo
