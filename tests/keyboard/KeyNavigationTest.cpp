#include "keyboard/KeyNavigation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "keyboard/KeyboardLayout.h"

namespace lumo {
namespace {

const std::vector<KeyCap>& keys() {
    static const std::vector<KeyCap> layout = defaultLayout();
    return layout;
}

std::size_t indexOf(const std::string& label) {
    return static_cast<std::size_t>(std::ranges::find(keys(), label, &KeyCap::label) - keys().begin());
}

/// The label of the key beside that one; empty at the edge.
std::string beside(const std::string& label, Direction direction) {
    const auto found = neighbour(keys(), indexOf(label), direction);
    return found ? keys()[*found].label : "";
}

TEST(KeyNavigation, RightGoesThroughTheRowThoughItIsNotQuiteLevel) {
    EXPECT_EQ(beside("Esc", Direction::right), "1");
    EXPECT_EQ(beside("2", Direction::right), "3");
    EXPECT_EQ(beside("=", Direction::right), "Backspace");
    EXPECT_EQ(beside("Backspace", Direction::right), "");
    EXPECT_EQ(beside("\\", Direction::right), "Delete");
    EXPECT_EQ(beside("Space", Direction::right), "RAlt");
    EXPECT_EQ(beside("FN", Direction::right), "RCtrl");
    EXPECT_EQ(beside("RCtrl", Direction::right), "Left");
    EXPECT_EQ(beside("Right", Direction::right), "");
}

TEST(KeyNavigation, LeftComesBack) {
    for (const KeyCap& key : keys()) {
        const auto right = neighbour(keys(), indexOf(key.label), Direction::right);
        if (!right) continue;
        EXPECT_EQ(beside(keys()[*right].label, Direction::left), key.label);
    }
}

TEST(KeyNavigation, DownGoesToTheKeyBelow) {
    EXPECT_EQ(beside("Esc", Direction::down), "Tab");
    EXPECT_EQ(beside("5", Direction::down), "T");
    EXPECT_EQ(beside("Backspace", Direction::down), "\\");
    EXPECT_EQ(beside("C", Direction::down), "Space");
    EXPECT_EQ(beside("M", Direction::down), "Space");
    EXPECT_EQ(beside("Z", Direction::down), "LAlt");
    EXPECT_EQ(beside("PgDn", Direction::down), "Right");
    EXPECT_EQ(beside("Space", Direction::down), "");
}

TEST(KeyNavigation, UpGoesToTheKeyAbove) {
    EXPECT_EQ(beside("Space", Direction::up), "B");
    EXPECT_EQ(beside("Delete", Direction::up), "Backspace");
    EXPECT_EQ(beside("Left", Direction::up), "RShift");
    EXPECT_EQ(beside("Up", Direction::up), "Enter");
    EXPECT_EQ(beside("Right", Direction::up), "PgDn");
    EXPECT_EQ(beside("Esc", Direction::up), "");
}

TEST(KeyNavigation, EveryKeyIsReachedFromTheFirst) {
    std::vector<bool> isReached(keys().size());
    std::vector<std::size_t> open{0};
    while (!open.empty()) {
        const std::size_t at = open.back();
        open.pop_back();
        if (isReached[at]) continue;
        isReached[at] = true;
        for (const auto direction : {Direction::left, Direction::right, Direction::up, Direction::down}) {
            if (const auto next = neighbour(keys(), at, direction)) open.push_back(*next);
        }
    }
    EXPECT_EQ(std::ranges::count(isReached, true), 67);
}

TEST(KeyAt, FindsAKeyFromItsFirstToItsLastPoint) {
    EXPECT_EQ(keyAt(keys(), 19.0, 29.0), indexOf("Esc"));
    EXPECT_EQ(keyAt(keys(), 52.9, 62.9), indexOf("Esc"));
    EXPECT_EQ(keyAt(keys(), 53.0, 40.0), std::nullopt);
    EXPECT_EQ(keyAt(keys(), 300.0, 200.0), indexOf("Space"));
}

TEST(KeyAt, FindsNothingAtTheRightEndOfTheTopRow) {
    for (double x = 594.0; x < 650.0; x += 1.0) {
        for (double y = 0.0; y < 69.0; y += 1.0) ASSERT_EQ(keyAt(keys(), x, y), std::nullopt) << x << ", " << y;
    }
}

}  // namespace
}  // namespace lumo
