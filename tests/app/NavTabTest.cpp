#include "app/NavTab.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

TEST(NavTab, NumbersOneToFiveArePages) {
    EXPECT_EQ(navTabFromRaw(1), NavTab::keyAssign);
    EXPECT_EQ(navTabFromRaw(2), NavTab::lighting);
    EXPECT_EQ(navTabFromRaw(3), NavTab::macro);
    EXPECT_EQ(navTabFromRaw(4), NavTab::music);
    EXPECT_EQ(navTabFromRaw(5), NavTab::settings);
}

TEST(NavTab, AnyOtherNumberIsNone) {
    EXPECT_EQ(navTabFromRaw(0), std::nullopt);
    EXPECT_EQ(navTabFromRaw(6), std::nullopt);
    EXPECT_EQ(navTabFromRaw(-1), std::nullopt);
}

}  // namespace
}  // namespace lumo
