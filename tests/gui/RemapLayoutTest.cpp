// Where things stand on the remap page, and what they look like there.
#include <gmock/gmock.h>

#include <QApplication>
#include <QHelpEvent>
#include <QTemporaryDir>
#include <QToolTip>

#include "controls/Card.h"
#include "controls/ListRow.h"
#include "controls/PushButton.h"
#include "controls/ScrollBar.h"
#include "gui/CurrentFolder.h"
#include "gui/RemapFixture.h"
#include "keyboard/KeyMiniature.h"
#include "remap/ActionPage.h"
#include "remap/RemapCard.h"
#include "remap/RemapCatalog.h"
#include "remap/RemapCategory.h"

namespace lumo {
namespace {

class RemapLayout : public test::RemapFixture {
protected:
    QRect namedRect(const QString& name) { return rectOf(control(name)); }
    void choose(const std::string& category) {
        state().remapCategory.set(category);
        time.settle();
    }
    template <typename Control>
    std::vector<Control*> shownOf() {
        std::vector<Control*> shown;
        for (Control* const each : only<KeyRemapView>().findChildren<Control*>()) {
            if (each->isVisible()) shown.push_back(each);
        }
        return shown;
    }
    std::vector<TextLine*> panelLines() {
        const auto found = only<TargetPanel>().findChildren<TextLine*>();
        return {found.begin(), found.end()};
    }
};

TEST_F(RemapLayout, TheUsualWindow) {
    openPage();
    EXPECT_EQ(rectOf(only<Card>()), QRect(16, 340, 192, 380));
    EXPECT_EQ(rectOf(only<TargetPanel>()), QRect(220, 340, 724, 60));
    EXPECT_EQ(namedRect("Multimedia"), QRect(28, 376, 168, 32));
    EXPECT_EQ(namedRect("Mouse"), QRect(28, 410, 168, 32));
    EXPECT_EQ(namedRect("Letters & Numbers"), QRect(28, 512, 168, 32));
    EXPECT_EQ(namedRect("Play / Pause"), QRect(220, 412, 138, 128));
    EXPECT_EQ(namedRect("Next Track"), QRect(806, 412, 138, 128));
    EXPECT_EQ(namedRect("Web Browser"), QRect(806, 548, 138, 128));
    EXPECT_EQ(namedRect("Save Key Matrix").top(), 688);
    EXPECT_EQ(namedRect("Save Key Matrix").height(), 32);
    EXPECT_EQ(namedRect("Save Key Matrix").right() + 1 + 8, namedRect("Reset to Defaults").left());
    EXPECT_EQ(namedRect("Reset to Defaults").right() + 1, 944);
    EXPECT_EQ(namedRect("Reset to Defaults").bottom() + 1, 720);
}

TEST_F(RemapLayout, TheSmallestWindow) {
    openPage({900, 680});
    EXPECT_EQ(rectOf(only<KeyRemapView>()), QRect(16, 340, 868, 300));
    EXPECT_EQ(rectOf(only<Card>()), QRect(16, 340, 176, 300));
    EXPECT_EQ(rectOf(only<TargetPanel>()), QRect(204, 340, 680, 60));
    EXPECT_EQ(namedRect("Play / Pause"), QRect(204, 412, 130, 88));
    EXPECT_EQ(namedRect("Web Browser"), QRect(754, 508, 130, 88));
    EXPECT_EQ(namedRect("Reset to Defaults").bottom() + 1, 640);
    EXPECT_FALSE(only<ScrollBar>().isVisible());
}

TEST_F(RemapLayout, InALargeWindowCardsStopAt140PointsAndTheButtonsStayAtTheFoot) {
    openPage({1360, 860});
    EXPECT_EQ(rectOf(only<Card>()), QRect(160, 340, 192, 480));
    EXPECT_EQ(rectOf(only<TargetPanel>()), QRect(364, 340, 836, 60));
    EXPECT_EQ(namedRect("Play / Pause"), QRect(364, 412, 161, 140));
    EXPECT_EQ(namedRect("Web Browser"), QRect(1039, 560, 161, 140));
    EXPECT_EQ(namedRect("Reset to Defaults").bottom() + 1, 820);
}

TEST_F(RemapLayout, ShortcutsStandInFourColumnsAndMouseButtonsInARowOfTheSameHeight) {
    openPage();
    choose("Shortcuts");
    EXPECT_EQ(namedRect("Ctrl + C (Copy)"), QRect(220, 412, 175, 128));
    EXPECT_EQ(namedRect("Disable Key"), QRect(769, 548, 175, 128));
    choose("Mouse");
    EXPECT_EQ(namedRect("Left Click"), QRect(220, 412, 138, 128));
    EXPECT_EQ(namedRect("Backward"), QRect(806, 412, 138, 128));
}

TEST_F(RemapLayout, FunctionKeysAreSixAcrossAnd56High) {
    for (const QSize size : {QSize(960, 760), QSize(900, 680), QSize(1360, 860)}) {
        openPage(size);
        choose("Function");
        EXPECT_EQ(namedRect("F1").top(), 412);
        EXPECT_EQ(namedRect("F1").height(), 56);
        EXPECT_EQ(namedRect("F7").topLeft(), namedRect("F1").topLeft() + QPoint(0, 64));
        EXPECT_EQ(namedRect("F6").right(), rectOf(only<TargetPanel>()).right());
        view.reset();
    }
}

TEST_F(RemapLayout, LettersAndDigitsShareThirteenColumns) {
    openPage();
    choose("Letters");
    EXPECT_EQ(namedRect("A"), QRect(220, 436, 50, 40));
    EXPECT_EQ(namedRect("M"), QRect(894, 436, 50, 40));
    EXPECT_EQ(namedRect("N"), QRect(220, 482, 50, 40));
    EXPECT_EQ(namedRect("1"), QRect(220, 558, 50, 40));
    EXPECT_EQ(namedRect("0").left(), namedRect("J").left());
}

TEST_F(RemapLayout, LettersFitIntoTheSmallestWindow) {
    openPage({900, 680});
    choose("Letters");
    EXPECT_EQ(namedRect("A"), QRect(204, 436, 47, 39));
    EXPECT_EQ(namedRect("1").bottom() + 1, 595);
    EXPECT_LE(namedRect("0").bottom() + 1 + 12, namedRect("Save Key Matrix").top());
}

TEST_F(RemapLayout, ThePanelHoldsTheKeyAndTwoLines) {
    openPage();
    clickKey("CapsLock");
    EXPECT_EQ(rectOf(only<KeyMiniature>()), QRect(236, 351, 67, 38));  // the cap, and 2 points around it
    const auto lines = panelLines();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(rectOf(*lines[1]).topLeft(), QPoint(317, 352));
    EXPECT_EQ(rectOf(*lines[2]).left(), rectOf(*lines[1]).right() + 1);
    EXPECT_EQ(rectOf(*lines[2]).height(), 18);
    EXPECT_EQ(rectOf(*lines[3]).topLeft(), QPoint(317, 372));
}

TEST_F(RemapLayout, AWideKeyIsDrawnNarrower) {
    openPage();
    clickKey("Space");
    EXPECT_EQ(rectOf(only<KeyMiniature>()).size(), QSize(80, 38));
    clickKey("A");
    EXPECT_EQ(rectOf(only<KeyMiniature>()).size(), QSize(38, 38));
    EXPECT_EQ(rectOf(*panelLines()[1]).left(), 288);
}

TEST_F(RemapLayout, WithoutATargetThePromptStandsInTheMiddle) {
    openPage();
    EXPECT_EQ(rectOf(*panelLines()[0]), QRect(236, 340, 692, 60));
    EXPECT_FALSE(only<KeyMiniature>().isVisible());
}

TEST_F(RemapLayout, NoTextIsElidedInTheSmallestWindow) {
    openPage({900, 680});
    for (const auto& label : {"Backspace", "CapsLock"}) {
        keyboard().bindKey(key(label).id, {0, 8, 7, 0}, "Show Desktop (Win+D)");
        clickKey(label);
        for (const TextLine* const line : view->findChildren<TextLine*>()) {
            EXPECT_FALSE(line->isVisible() && line->isElided()) << line->text().toStdString();
        }
    }
}

TEST_F(RemapLayout, NoNameIsElidedInTheSmallestWindow) {
    openPage({900, 680});
    for (const RemapCategory& category : kRemapCategories) {
        choose(std::string(category.key));
        for (const PushButton* const button : shownOf<PushButton>()) {
            EXPECT_LE(button->widthWith(6), button->width()) << button->text().toStdString();
        }
        for (const ListRow* const tab : shownOf<ListRow>()) {
            EXPECT_LE(tab->sizeHint().width(), tab->width()) << tab->text().toStdString();
        }
        for (const RemapCard* const card : shownOf<RemapCard>()) {
            EXPECT_FALSE(card->isElided()) << card->text().toStdString();
        }
    }
}

TEST_F(RemapLayout, ThePromptIsNotElidedInTheSmallestWindow) {
    openPage({900, 680});
    ASSERT_TRUE(panelLines().front()->isVisible());
    EXPECT_FALSE(panelLines().front()->isElided());
}

TEST_F(RemapLayout, OnlyTheButtonThatSavesHasASymbol) {
    openPage();
    PushButton save("Save Key Matrix", look::kPrimary, &only<KeyRemapView>());
    save.setSymbol("arrow.down.doc.fill");
    PushButton reset("Reset to Defaults", look::kPlain, &only<KeyRemapView>());
    for (PushButton* const expected : {&save, &reset}) {
        PushControl& shown = control(expected->text());  // the page's own, which came first
        ASSERT_NE(&shown, expected);
        expected->resize(shown.size());
        EXPECT_EQ(shown.grab().toImage(), expected->grab().toImage()) << expected->text().toStdString();
    }
}

TEST_F(RemapLayout, TheMiniatureIsTheKeyInItsOwnColor) {
    openPage();
    keyboard().showColorOnAll(Color{0.0, 1.0, 0.0});
    clickKey("Q");
    const QImage green = only<KeyMiniature>().grab().toImage();
    const QColor skirt = green.pixelColor(19, 34);
    EXPECT_GT(skirt.green(), skirt.red() + 20);
    EXPECT_EQ(green.pixelColor(0, 0), QColor(0x21, 0x21, 0x23));
    keyboard().showColorOnAll(Color{1.0, 0.0, 0.0});
    time.settle();
    const QColor red = only<KeyMiniature>().grab().toImage().pixelColor(19, 34);
    EXPECT_GT(red.red(), red.green() + 20);
}

/// The same cap in the same light, left of the middle of the key where no letter is.
TEST_F(RemapLayout, TheMiniatureLooksAsTheKeyOnTheKeyboardDoes) {
    openPage();
    link().activeModeId.set(21);  // every key in its own colour, at that glow
    clickKey("CapsLock");
    keyboard().selectedKeyIds.set({"K31"});
    state().hoveredKeyId.set(std::nullopt);
    time.settle();
    const QImage small = only<KeyMiniature>().grab().toImage();
    const QImage whole = only<KeyboardCanvas>().grab().toImage();
    for (int y = 6; y < 30; ++y) {
        const QColor cap = small.pixelColor(2 + 8, 2 + y);
        const QColor onKeyboard = whole.pixelColor(20 + 8, 107 + y);
        EXPECT_NEAR(cap.red(), onKeyboard.red(), 1) << y;
        EXPECT_NEAR(cap.green(), onKeyboard.green(), 1) << y;
        EXPECT_NEAR(cap.blue(), onKeyboard.blue(), 1) << y;
    }
}

TEST(RemapCardName, ThatDoesNotFitIsElidedAndToldAsHoverHelp) {
    RemapCard card(remapItems(kSystemActions).at(6), nullptr);
    card.show();
    const auto askForHelp = [&card](int width) {
        card.resize(width, 88);
        QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), card.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&card, &event);
    };
    askForHelp(300);
    EXPECT_FALSE(card.isElided());
    EXPECT_FALSE(QToolTip::text().contains("Show Desktop"));
    askForHelp(90);
    EXPECT_TRUE(card.isElided());
    EXPECT_TRUE(QToolTip::text().contains("Show Desktop (Win+D)"));
    QToolTip::hideText();
}

class RemapCardLooks : public test::LinkFixture {
protected:
    QTemporaryDir empty;
    test::CurrentFolder here{empty.path()};

    static int brightPixels(const QImage& picture) {
        int bright = 0;
        for (int y = 16; y < 48; ++y) {
            for (int x = 54; x < 86; ++x) bright += picture.pixelColor(x, y).lightness() > 120 ? 1 : 0;
        }
        return bright;
    }
};

TEST_F(RemapCardLooks, WithoutArtworkACardShowsTheSymbolOfFourRings) {
    RemapCard card(remapItems(kMediaActions).front(), nullptr);
    card.resize(140, 88);
    EXPECT_GT(brightPixels(card.grab().toImage()), 40);
}

TEST_F(RemapCardLooks, ThePictureOfAnActionIsStretchedOver32Points) {
    QImage teal(8, 4, QImage::Format_RGB32);
    teal.fill(Qt::cyan);
    ASSERT_TRUE(QDir().mkpath(empty.filePath("assets/skins/fun55x55")));
    ASSERT_TRUE(teal.save(empty.filePath("assets/skins/fun55x55/media_play.png")));
    RemapCard card(remapItems(kMediaActions).front(), nullptr);
    card.resize(140, 88);
    const QImage picture = card.grab().toImage();
    EXPECT_EQ(picture.pixelColor(54, 17), QColor(Qt::cyan));
    EXPECT_EQ(picture.pixelColor(85, 48), QColor(Qt::cyan));
    EXPECT_NE(picture.pixelColor(53, 30), QColor(Qt::cyan));
    EXPECT_NE(picture.pixelColor(86, 30), QColor(Qt::cyan));
    EXPECT_NE(picture.pixelColor(70, 49), QColor(Qt::cyan));
}

}  // namespace
}  // namespace lumo
