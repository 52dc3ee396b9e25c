// Where things stand, at the window's usual size, its smallest and a large one.
#include <gmock/gmock.h>

#include "app/BrandButton.h"
#include "app/ConnectionDot.h"
#include "app/HeaderBar.h"
#include "app/NavigationBar.h"
#include "app/PageArea.h"
#include "app/ProfileBar.h"
#include "app/StatusBar.h"
#include "app/StatusChip.h"
#include "controls/Card.h"
#include "controls/ColorWheel.h"
#include "controls/InfoBox.h"
#include "controls/Popup.h"
#include "controls/PushButton.h"
#include "controls/Slider.h"
#include "controls/TextBlock.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"
#include "keyboard/ColorSwatch.h"
#include "keyboard/EffectRow.h"
#include "keyboard/KeyboardCanvas.h"
#include "keyboard/LevelsCard.h"
#include "keyboard/LightingControlView.h"
#include "keyboard/PaletteCard.h"
#include "system/PermissionToast.h"

namespace lumo {
namespace {

class Layout : public test::WindowFixture {
protected:
    QRect rowRect(std::size_t index) { return rectOf(*rows().at(index)); }
    QRect namedRect(const QString& name) { return rectOf(control(name)); }
    /// Of a swatch, without the room for its ring.
    QRect colorRect(const QString& name) { return namedRect(name).adjusted(4, 4, -4, -4); }
    /// The area without the room for its scroll bar.
    QRect pageRect() { return rectOf(*only<PageArea>().viewport()); }
    double wheelDiameter() { return only<ColorWheel>().discRect().width(); }
};

TEST_F(Layout, TheUsualWindow) {
    show({960, 760});
    EXPECT_EQ(rectOf(only<HeaderBar>()), QRect(0, 0, 960, 45));
    EXPECT_EQ(rectOf(only<NavigationBar>()), QRect(16, 53, 928, 36));
    EXPECT_EQ(rectOf(only<KeyboardCanvas>()), QRect(11, 92, 650, 247));
    EXPECT_EQ(pageRect(), QRect(16, 340, 928, 380));
    EXPECT_EQ(rectOf(only<StatusBar>()), QRect(0, 732, 960, 28));
}

TEST_F(Layout, TheSmallestWindow) {
    show({900, 680});
    EXPECT_EQ(rectOf(only<HeaderBar>()), QRect(0, 0, 900, 45));
    EXPECT_EQ(rectOf(only<NavigationBar>()), QRect(16, 53, 868, 36));
    EXPECT_EQ(rectOf(only<KeyboardCanvas>()), QRect(11, 92, 650, 247));
    EXPECT_EQ(pageRect(), QRect(16, 340, 868, 300));
    EXPECT_EQ(rectOf(only<StatusBar>()), QRect(0, 652, 900, 28));
}

TEST_F(Layout, ALargeWindowCentresItsColumn) {
    show({1360, 860});
    EXPECT_EQ(rectOf(only<HeaderBar>()), QRect(0, 0, 1360, 45));
    EXPECT_EQ(rectOf(only<NavigationBar>()), QRect(160, 53, 1040, 36));
    EXPECT_EQ(rectOf(only<KeyboardCanvas>()), QRect(155, 92, 650, 247));
    EXPECT_EQ(pageRect(), QRect(160, 340, 1040, 480));
}

TEST_F(Layout, AWindowThatIsResizedIsLaidOutAnew) {
    show({960, 760});
    view->resize(900, 680);
    EXPECT_EQ(pageRect(), QRect(16, 340, 868, 300));
    EXPECT_EQ(rectOf(only<LightingControlView>()), QRect(16, 340, 868, 300));
    EXPECT_EQ(rowRect(0), QRect(28, 376, 177, 24));
}

TEST_F(Layout, TheNavigationHasFiveEqualPills) {
    show({960, 760});
    EXPECT_EQ(namedRect("Key Assignment"), QRect(19, 56, 183, 30));
    EXPECT_EQ(namedRect("Lighting Effect"), QRect(204, 56, 183, 30));
    EXPECT_EQ(namedRect("Device Settings"), QRect(758, 56, 183, 30));
}

TEST_F(Layout, TheSidePanelStandsRightOfTheKeyboard) {
    show({960, 760});
    EXPECT_EQ(namedRect("Default"), QRect(673, 125, 82, 30));
    EXPECT_EQ(namedRect("FN1"), QRect(759, 125, 59, 30));
    EXPECT_EQ(namedRect("Tap").right() + 1, 944);
    EXPECT_EQ(namedRect("WASD"), QRect(673, 189, 88, 28));
    EXPECT_EQ(namedRect("Numbers").right() + 1, 944);
    EXPECT_EQ(namedRect("All"), QRect(673, 223, 134, 28));
    EXPECT_EQ(namedRect("Clear").right() + 1, 944);
    EXPECT_EQ(rectOf(only<InfoBox>()), QRect(673, 263, 271, 65));
}

TEST_F(Layout, TheSidePanelNarrowsWithTheWindow) {
    show({900, 680});
    EXPECT_EQ(rectOf(only<InfoBox>()), QRect(673, 263, 211, 65));
    EXPECT_EQ(namedRect("Tap").right() + 1, 884);
}

TEST_F(Layout, TheEffectsHaveRowsOf31PointsInTheUsualWindow) {
    show({960, 760});
    EXPECT_EQ(rectOf(only<Card>()), QRect(16, 340, 415, 380));
    EXPECT_EQ(rowRect(0), QRect(28, 376, 192, 31));
    EXPECT_EQ(rowRect(1), QRect(28, 409, 192, 31));
    EXPECT_EQ(rowRect(9), QRect(28, 673, 192, 31));
    EXPECT_EQ(rowRect(10), QRect(228, 376, 191, 31));
    EXPECT_EQ(rowRect(19), QRect(228, 673, 191, 31));
}

TEST_F(Layout, TheEffectsHaveRowsOf24PointsInTheSmallestWindowAllInsideTheCard) {
    show({900, 680});
    EXPECT_EQ(rectOf(only<Card>()), QRect(16, 340, 396, 300));
    EXPECT_EQ(rowRect(0), QRect(28, 376, 177, 24));
    EXPECT_EQ(rowRect(10), QRect(213, 376, 187, 24));
    EXPECT_EQ(rowRect(9), QRect(28, 610, 177, 24));
}

TEST_F(Layout, TheEffectsStopAtRowsOf34PointsInALargeWindow) {
    show({1360, 860});
    EXPECT_EQ(rectOf(only<Card>()), QRect(160, 340, 467, 480));
    EXPECT_EQ(rowRect(0).height(), 34);
    EXPECT_EQ(rowRect(19).bottom() + 1, 734);
}

TEST_F(Layout, TheLevelsCardHoldsSlidersAndWheel) {
    show({960, 760});
    EXPECT_EQ(rectOf(only<LevelsCard>()), QRect(443, 340, 245, 380));
    const auto sliders = view->findChildren<Slider*>();
    ASSERT_EQ(sliders.size(), 2);
    EXPECT_EQ(sliders[0]->hitArea().translated(rectOf(*sliders[0]).topLeft()), QRect(455, 372, 221, 20));
    EXPECT_EQ(sliders[1]->hitArea().translated(rectOf(*sliders[1]).topLeft()), QRect(455, 426, 221, 20));
    EXPECT_NEAR(wheelDiameter(), 0.98 * 196, 0.5);
}

TEST_F(Layout, NothingIsCutOffTheSlidersTheWheelAndTheSwatches) {
    show({900, 680});
    std::vector<QWidget*> roomy{&only<ColorWheel>()};
    for (Slider* const slider : view->findChildren<Slider*>()) roomy.push_back(slider);
    for (ColorSwatch* const swatch : view->findChildren<ColorSwatch*>()) roomy.push_back(swatch);
    ASSERT_EQ(roomy.size(), 11U);
    for (const QWidget* const each : roomy) {
        EXPECT_EQ(each->visibleRegion().boundingRect(), each->rect()) << each->accessibleName().toStdString();
    }
}

TEST_F(Layout, TheWheelGrowsAndShrinksWithItsCard) {
    show({900, 680});
    EXPECT_EQ(rectOf(only<LevelsCard>()), QRect(424, 340, 212, 300));
    EXPECT_NEAR(wheelDiameter(), 0.98 * 144, 0.5);
    view->resize(1360, 860);
    EXPECT_NEAR(wheelDiameter(), 0.98 * 244, 0.5);
}

TEST_F(Layout, ThePaletteCardHasItsToolsAtTheFoot) {
    show({960, 760});
    EXPECT_EQ(rectOf(only<PaletteCard>()), QRect(700, 340, 244, 380));
    EXPECT_EQ(colorRect("Violet"), QRect(712, 378, 49, 48));
    EXPECT_EQ(colorRect("Green"), QRect(883, 378, 49, 48));
    EXPECT_EQ(colorRect("Yellow"), QRect(712, 434, 49, 48));
    EXPECT_EQ(rectOf(*only<PaletteCard>().findChild<TextBlock*>()), QRect(712, 578, 220, 48));
    EXPECT_EQ(namedRect("Paint Selected (0)"), QRect(712, 640, 220, 32));
    EXPECT_EQ(namedRect("Fill All"), QRect(712, 680, 78, 28));
    EXPECT_EQ(namedRect("Rainbow Preset"), QRect(798, 680, 134, 28));
}

TEST_F(Layout, ThePaletteIsLowInTheSmallestWindow) {
    show({900, 680});
    EXPECT_EQ(rectOf(only<PaletteCard>()), QRect(648, 340, 236, 300));
    EXPECT_EQ(colorRect("Violet"), QRect(660, 378, 47, 30));
    EXPECT_EQ(colorRect("White").bottom() + 1, 446);
    EXPECT_EQ(rectOf(*only<PaletteCard>().findChild<TextBlock*>()), QRect(660, 502, 212, 48));
    EXPECT_EQ(namedRect("Paint Selected (0)"), QRect(660, 560, 212, 32));
}

TEST_F(Layout, NoTextIsElidedInTheSmallestWindow) {
    show({900, 680});
    PermissionManager& permissions = objects.permissionManager();
    permissions.showFirstLaunchPopup.set(true);
    permissions.showRecheckPopup.set(true);
    time.advance(Duration{0});
    ASSERT_EQ(view->findChildren<Popup*>().size(), 2);
    only<PermissionToast>().setShown(true);
    for (const TextLine* const line : view->findChildren<TextLine*>()) {
        EXPECT_FALSE(line->isElided()) << line->text().toStdString();
    }
    for (const TextBlock* const block : view->findChildren<TextBlock*>()) {
        EXPECT_FALSE(block->isElided()) << block->text().toStdString();
    }
    for (const PushButton* const button : view->findChildren<PushButton*>()) {
        EXPECT_LE(button->widthWith(6), button->width()) << button->text().toStdString();
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

TEST_F(Layout, TheProfilesMoveWithTheLengthOfTheConnectionText) {
    show();
    const auto distance = [this] { return rectOf(only<ConnectionDot>()).left() - rectOf(only<ProfileBar>()).right(); };
    const int gap = distance();
    const int left = rectOf(only<ProfileBar>()).left();
    EXPECT_EQ(rectOf(only<ProfileBar>()).height(), 28);
    connect();
    EXPECT_GT(std::abs(rectOf(only<ProfileBar>()).left() - left), 1);
    EXPECT_EQ(distance(), gap);
}

TEST_F(Layout, TheFixedTextsOfTheStatusBarAreRightAligned) {
    show();
    const auto texts = only<StatusBar>().findChildren<TextLine*>();
    ASSERT_EQ(texts.size(), 5);  // message, two chips, and these
    EXPECT_EQ(texts[3]->text(), "Protocol: SinoWealth K916 (BYCOMBO4)");
    EXPECT_EQ(texts[4]->text(), "VID: 0x258A | PID: 0x010C");
    EXPECT_EQ(rectOf(*texts[4]).right() + 1, 944);
    EXPECT_EQ(rectOf(*texts[3]).right() + 1 + 14 + 1 + 14, rectOf(*texts[4]).left());
}

TEST_F(Layout, TheChipsStandBeforeTheFixedTexts) {
    show();
    const auto chips = only<StatusBar>().findChildren<StatusChip*>();
    ASSERT_EQ(chips.size(), 2);
    const QRect audio = rectOf(*chips[0]);
    const QRect keys = rectOf(*chips[1]);
    EXPECT_EQ(audio.height(), 18);
    EXPECT_LE(std::abs(audio.width() - 86), 1);
    EXPECT_LE(std::abs(keys.width() - 83), 1);
    EXPECT_EQ(audio.right() + 1 + 8, keys.left());
    EXPECT_EQ(keys.right() + 1 + 14 + 1 + 14, rectOf(*only<StatusBar>().findChildren<TextLine*>().at(3)).left());
}

#ifndef Q_OS_MACOS
TEST_F(Layout, TheHeaderBeginsWithTheHexagonAtTheWindowMargin) {
    show();
    EXPECT_EQ(rectOf(only<BrandButton>()).center(), QRect(16, 12, 20, 20).center());
}
#endif

}  // namespace
}  // namespace lumo
