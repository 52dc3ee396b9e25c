#include "controls/TextBlock.h"

#include <gmock/gmock.h>

namespace lumo {
namespace {

using testing::ElementsAre;

class Block : public testing::Test {
protected:
    TextBlock block{theme::kRowStyle, Qt::white, 2, nullptr};

    void showText(std::string_view text, int width) {
        block.resize(width, 40);
        block.setText(text);
        block.grab();  // a widget that was never shown learns of its size now
    }
};

TEST_F(Block, BreaksBetweenWords) {
    showText("one two", 400);
    EXPECT_THAT(block.lines(), ElementsAre("one two"));
    showText("one two", 30);
    EXPECT_THAT(block.lines(), ElementsAre("one", "two"));
    EXPECT_FALSE(block.isElided());
}

TEST_F(Block, ElidesWhatItsLastLineCannotHold) {
    showText("one two three four five six seven eight nine ten", 60);
    ASSERT_EQ(block.lines().size(), 2);
    EXPECT_TRUE(block.lines().back().endsWith(QChar(0x2026)));
    EXPECT_TRUE(block.isElided());
    EXPECT_EQ(block.accessibleName(), "one two three four five six seven eight nine ten");
}

TEST_F(Block, BreaksAnewWhenItsWidthChanges) {
    showText("one two", 30);
    block.resize(400, 40);
    block.grab();
    EXPECT_THAT(block.lines(), ElementsAre("one two"));
}

TEST_F(Block, TakesMarkupForText) {
    showText("<b>one</b>", 400);
    EXPECT_THAT(block.lines(), ElementsAre("<b>one</b>"));
}

TEST_F(Block, EmptyTextHasNothingToPaint) {
    showText("one", 400);
    showText("", 400);
    EXPECT_TRUE(block.lines().isEmpty() || block.lines().front().isEmpty());
}

}  // namespace
}  // namespace lumo
