#include "support/VirtualTime.h"

#include <gtest/gtest.h>

#include <string>

namespace lumo::test {
namespace {

using namespace std::chrono_literals;

TEST(VirtualTime, EqualTimesRunInPostingOrderOnBothQueues) {
    VirtualTime time;
    std::string order;
    time.mainQueue().run.post([&] { order += 'a'; });
    time.ioQueue().run.post([&] { order += 'b'; });
    time.mainQueue().run.post([&] { order += 'c'; });
    time.settle();
    EXPECT_EQ(order, "abc");
}

TEST(VirtualTime, TheMainQueueGoesOnWhileATaskPauses) {
    VirtualTime time;
    std::string order;
    time.ioQueue().run.post([&] {
        order += '1';
        time.ioQueue().run.pause(20ms);
        order += '3';
    });
    time.at(10ms, [&] { order += '2'; });
    time.at(30ms, [&] { order += '4'; });
    time.settle();
    EXPECT_EQ(order, "1234");
    EXPECT_EQ(time.now(), 30ms);
}

TEST(VirtualTime, TheIoQueueNeverInterleavesItsTasks) {
    VirtualTime time;
    std::string order;
    time.ioQueue().run.post([&] {
        time.ioQueue().run.post([&] { order += '2'; });
        time.ioQueue().run.pause(20ms);
        order += '1';
    });
    time.settle();
    EXPECT_EQ(order, "12");
}

TEST(VirtualTime, ATimerRepeatsUntilItIsDropped) {
    VirtualTime time;
    int ticks = 0;
    auto timer = time.mainQueue().run.repeatEvery(2s, [&] { ++ticks; });
    time.advance(5s);
    EXPECT_EQ(ticks, 2);
    timer.reset();
    time.advance(5s);
    EXPECT_EQ(ticks, 2);
}

}  // namespace
}  // namespace lumo::test
