#include "foundation/ReferenceDate.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

using namespace std::chrono;

TEST(ReferenceDate, IsTheFirstMomentOf2001) {
    EXPECT_EQ(secondsSinceReferenceDate(system_clock::from_time_t(978307200)), 0.0);
}

TEST(ReferenceDate, CountsTheSecondsOfADayIn2026WithItsFraction) {
    // 2026-03-14 15:09:26.5 UTC
    EXPECT_EQ(secondsSinceReferenceDate(system_clock::from_time_t(1773500966) + 500ms), 795193766.5);
}

TEST(ReferenceDate, IsNegativeBeforeThatDay) {
    EXPECT_EQ(secondsSinceReferenceDate(system_clock::from_time_t(0)), -978307200.0);
}

TEST(ReferenceDate, KeepsMicrosecondsApart) {
    const auto moment = system_clock::from_time_t(1773500966);
    EXPECT_NEAR(secondsSinceReferenceDate(moment + 1us) - secondsSinceReferenceDate(moment), 1e-6, 2e-7);
}

}  // namespace
}  // namespace lumo
