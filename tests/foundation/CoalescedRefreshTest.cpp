#include "foundation/CoalescedRefresh.h"

#include <gtest/gtest.h>

#include <optional>

#include "support/VirtualTime.h"

namespace lumo {
namespace {

TEST(CoalescedRefresh, ManyRequestsInOneTurnGiveOneRefreshInTheNext) {
    test::VirtualTime time;
    int refreshes = 0;
    CoalescedRefresh refresh(time.mainQueue(), [&] { ++refreshes; });
    refresh.request();
    refresh.request();
    refresh.request();
    EXPECT_EQ(refreshes, 0);
    time.settle();
    EXPECT_EQ(refreshes, 1);
}

TEST(CoalescedRefresh, ARequestMadeWhileRefreshingIsNotLost) {
    test::VirtualTime time;
    int refreshes = 0;
    std::optional<CoalescedRefresh> refresh;
    refresh.emplace(time.mainQueue(), [&] {
        if (++refreshes == 1) refresh->request();
    });
    refresh->request();
    time.settle();
    EXPECT_EQ(refreshes, 2);
}

TEST(CoalescedRefresh, AViewThatIsGoneIsNotRefreshed) {
    test::VirtualTime time;
    int refreshes = 0;
    {
        CoalescedRefresh refresh(time.mainQueue(), [&] { ++refreshes; });
        refresh.request();
    }
    time.settle();
    EXPECT_EQ(refreshes, 0);
}

}  // namespace
}  // namespace lumo
