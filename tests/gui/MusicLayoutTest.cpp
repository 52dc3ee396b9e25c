// Where things stand on the music page, and what assistive technology finds there.
#include <gmock/gmock.h>

#include "audio/Equalizer.h"
#include "audio/EqualizerCard.h"
#include "audio/MicrophoneNotice.h"
#include "audio/MusicLevelsCard.h"
#include "audio/MusicModeTile.h"
#include "controls/Card.h"
#include "controls/PushButton.h"
#include "controls/TextBlock.h"
#include "controls/TextLine.h"
#include "gui/AccessibleTree.h"
#include "gui/MusicFixture.h"

namespace lumo {
namespace {

using test::accessible;
using test::accessibles;
using test::nameOf;
using testing::ElementsAre;

class MusicLayout : public test::MusicFixture {
protected:
    void showWithNotice(QSize size) {
        showMusic(size);
        setMicrophone(AudioAuthorization::denied);
    }
    QRect tile(int index) { return rectOf(*view->findChildren<MusicModeTile*>().at(index)); }
    QRect hitArea(int index) { return slider(index).hitArea().translated(rectOf(slider(index)).topLeft()); }
};

TEST_F(MusicLayout, TheUsualWindow) {
    showWithNotice({960, 760});
    EXPECT_EQ(rectOf(only<EqualizerCard>()), QRect(16, 340, 384, 316));
    EXPECT_EQ(rectOf(control("STREAM: OFF")), QRect(28, 418, 360, 36));
    EXPECT_EQ(rectOf(only<Equalizer>()), QRect(28, 468, 360, 176));
    EXPECT_EQ(rectOf(bars()), QRect(36, 507, 344, 81));
    EXPECT_EQ(rectOf(only<MicrophoneNotice>()), QRect(16, 668, 384, 52));
    EXPECT_EQ(rectOf(control("Grant Access")).right() + 1, 388);
    EXPECT_EQ(rectOf(control("Grant Access")).top(), 680);
    EXPECT_EQ(rectOf(only<Card>()), QRect(412, 340, 532, 302));
    EXPECT_EQ(tile(0), QRect(424, 376, 230, 46));
    EXPECT_EQ(tile(4), QRect(424, 584, 230, 46));
    EXPECT_EQ(tile(5), QRect(662, 376, 270, 46));
    EXPECT_EQ(tile(9), QRect(662, 584, 270, 46));
    EXPECT_EQ(rectOf(only<MusicLevelsCard>()), QRect(412, 654, 532, 66));
    EXPECT_EQ(hitArea(0), QRect(428, 686, 236, 20));
    EXPECT_EQ(hitArea(1), QRect(692, 686, 236, 20));
}

TEST_F(MusicLayout, TheSmallestWindow) {
    showWithNotice({900, 680});
    EXPECT_EQ(rectOf(only<EqualizerCard>()), QRect(16, 340, 344, 220));
    EXPECT_EQ(rectOf(control("STREAM: OFF")), QRect(28, 410, 320, 28));
    EXPECT_EQ(rectOf(only<Equalizer>()), QRect(28, 446, 320, 102));
    EXPECT_EQ(rectOf(bars()), QRect(36, 448, 304, 81));
    EXPECT_EQ(rectOf(only<MicrophoneNotice>()), QRect(16, 572, 344, 68));
    EXPECT_EQ(rectOf(only<Card>()), QRect(372, 340, 512, 222));
    EXPECT_EQ(tile(0), QRect(384, 376, 221, 32));
    EXPECT_EQ(tile(1).top(), 412);
    EXPECT_EQ(tile(5), QRect(613, 376, 259, 32));
    EXPECT_EQ(tile(9).bottom() + 1, 550);
    EXPECT_EQ(rectOf(only<MusicLevelsCard>()), QRect(372, 574, 512, 66));
}

TEST_F(MusicLayout, WithoutTheNoticeTheEqualizerTakesItsRoom) {
    showMusic({960, 760});
    EXPECT_EQ(rectOf(only<EqualizerCard>()), QRect(16, 340, 384, 380));
    setMicrophone(AudioAuthorization::denied);
    EXPECT_EQ(rectOf(only<EqualizerCard>()), QRect(16, 340, 384, 316));
    setMicrophone(AudioAuthorization::authorized);
    EXPECT_EQ(rectOf(only<EqualizerCard>()), QRect(16, 340, 384, 380));
    EXPECT_EQ(rectOf(only<Equalizer>()), QRect(28, 468, 360, 240));
}

TEST_F(MusicLayout, TheCellsSpreadOverTheWell) {
    showMusic({960, 760});
    EXPECT_DOUBLE_EQ(bars().cellX(0), 0.0);
    EXPECT_NEAR(bars().cellX(1), 21.733, 0.001);
    EXPECT_DOUBLE_EQ(bars().cellX(15), 326.0);
    EXPECT_EQ(bars().barRect(0).left(), 2.0);
}

TEST_F(MusicLayout, TheSourceStandsWhereThereIsRoomAndNamesTheBarsAnyway) {
    const auto standsThere = [this] {
        QAccessibleInterface* const text = accessible(*view, QAccessible::StaticText, "Internal Rhythm Generator");
        return text && !text->state().invisible;
    };
    showWithNotice({960, 760});
    EXPECT_TRUE(standsThere());
    view->resize(900, 680);
    EXPECT_FALSE(standsThere());
    EXPECT_NE(accessible(*view, QAccessible::Graphic, "Internal Rhythm Generator"), nullptr);
}

TEST_F(MusicLayout, NoTextIsElidedInTheSmallestWindow) {
    showWithNotice({900, 680});
    for (const TextLine* const line : view->findChildren<TextLine*>()) {
        EXPECT_FALSE(line->isVisible() && line->isElided()) << line->text().toStdString();
    }
    for (const TextBlock* const block : view->findChildren<TextBlock*>()) {
        EXPECT_FALSE(block->isVisible() && block->isElided()) << block->text().toStdString();
    }
    for (const MusicModeTile* const each : view->findChildren<MusicModeTile*>()) {
        EXPECT_FALSE(each->isElided()) << each->text().toStdString();
    }
    for (const PushButton* const button : view->findChildren<PushButton*>()) {
        if (!button->isVisible()) continue;
        EXPECT_LE(button->widthWith(6), button->width()) << button->text().toStdString();
    }
}

TEST_F(MusicLayout, TheModesAreTheItemsOfOneListWithOneSelected) {
    showMusic();
    const auto lists = accessibles(*view, QAccessible::List);
    ASSERT_EQ(lists.size(), 1U);
    ASSERT_EQ(lists.front()->childCount(), 10);
    EXPECT_EQ(nameOf(*lists.front()->child(1)), "Dazzling - rock");
    std::vector<int> selected;
    for (int i = 0; i < 10; ++i) {
        if (lists.front()->child(i)->state().selected) selected.push_back(i);
    }
    EXPECT_THAT(selected, ElementsAre(0));
    lists.front()->child(6)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(state().activeMusicMode.get(), 7);
}

TEST_F(MusicLayout, TheToggleIsAButtonOfItsText) {
    showMusic();
    QAccessibleInterface* const toggle = accessible(*view, QAccessible::PushButton, "STREAM: OFF");
    ASSERT_NE(toggle, nullptr);
    toggle->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    turn();
    EXPECT_EQ(nameOf(*toggle), "STREAMING: ON");
}

TEST_F(MusicLayout, SectionsAndSlidersAreNamedByTheirHeadings) {
    showMusic();
    std::vector<QString> headings;
    for (const QAccessibleInterface* const group : accessibles(*view, QAccessible::Grouping)) {
        const auto labels = group->relations(QAccessible::Label);
        if (labels.size() == 1) headings.push_back(nameOf(*labels.front().first));
    }
    EXPECT_THAT(headings, ElementsAre("LAYER:", "Select:", "AUDIO REACTIVE EQUALIZER (MODE 17)", "MUSIC EFFECT MODES",
                                      "GAIN FACTOR", "SMOOTHNESS"));
    const auto sliders = accessibles(*view, QAccessible::Slider);
    ASSERT_EQ(sliders.size(), 2U);
    EXPECT_EQ(nameOf(*sliders[0]), "GAIN FACTOR");
    EXPECT_EQ(sliders[0]->valueInterface()->minimumValue().toDouble(), 1.0);
    EXPECT_EQ(sliders[0]->valueInterface()->maximumValue().toDouble(), 5.0);
    EXPECT_EQ(sliders[0]->valueInterface()->minimumStepSize().toDouble(), 0.5);
    EXPECT_EQ(sliders[0]->valueInterface()->currentValue().toDouble(), 2.5);
}

}  // namespace
}  // namespace lumo
