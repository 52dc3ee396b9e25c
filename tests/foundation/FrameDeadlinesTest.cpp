#include "foundation/FrameDeadlines.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace lumo {
namespace {

using namespace std::chrono;
using Moment = steady_clock::time_point;

class Frames : public testing::Test {
protected:
    Moment now{hours(1)};
    FrameDeadlines deadlines;

    /// A frame that comes `late` after its deadline; returns how long after `now` it was due.
    steady_clock::duration frame(double rateHz, steady_clock::duration late = 0ns) {
        const Moment before = now;
        const Moment due = deadlines.next(now, rateHz);
        now = due + late;
        return due - before;
    }

    /// Timers that are up to `latest` late, as they are on a busy machine.
    int framesInAMinute(double rateHz, microseconds latest) {
        std::minstd_rand random(20010101);
        std::uniform_int_distribution<int> lateness(0, static_cast<int>(latest.count()));
        const Moment end = now + 60s;
        int frames = 0;
        for (; now < end; ++frames) frame(rateHz, microseconds(lateness(random)));
        return frames;
    }
};

class FrameDeadlinesTest : public Frames {};

TEST_F(FrameDeadlinesTest, TheFirstFrameIsAPeriodFromNow) { EXPECT_EQ(frame(50.0), 20ms); }

TEST_F(FrameDeadlinesTest, ALateFrameDoesNotMakeTheNextOneLate) {
    frame(50.0, 7ms);
    EXPECT_EQ(frame(50.0), 13ms);
    EXPECT_EQ(frame(50.0), 20ms);
}

TEST_F(FrameDeadlinesTest, JitterLeavesTheRateAsItIs) {
    EXPECT_NEAR(framesInAMinute(60.0, 3ms), 3600, 24);
    EXPECT_NEAR(framesInAMinute(144.0, 3ms), 8640, 58);
    EXPECT_NEAR(framesInAMinute(59.94, 16ms), 3596, 24);
}

TEST_F(FrameDeadlinesTest, AfterASleepFramesGoOnFromNowWithoutABurst) {
    frame(50.0, 8h);
    EXPECT_EQ(frame(50.0), 20ms);
    EXPECT_EQ(frame(50.0), 20ms);
}

TEST_F(FrameDeadlinesTest, ADeadlineMissedByExactlyAPeriodIsGivenUp) {
    frame(50.0, 20ms);
    EXPECT_EQ(frame(50.0), 20ms);
}

TEST_F(FrameDeadlinesTest, AnotherRateHoldsFromTheNextFrameOn) {
    frame(50.0);
    EXPECT_EQ(frame(125.0), 8ms);
    EXPECT_EQ(frame(20.0), 50ms);
    EXPECT_EQ(frame(20.0), 50ms);
}

TEST_F(FrameDeadlinesTest, AskingAgainAndAgainNeverPutsTheFrameOffByMoreThanAPeriod) {
    for (int i = 0; i < 100; ++i) EXPECT_LE(deadlines.next(now, 50.0) - now, 20ms);
}

TEST(FramePeriod, IsThatOfTheRate) {
    EXPECT_EQ(framePeriod(50.0), 20ms);
    EXPECT_EQ(framePeriod(60.0), 16666667ns);
    EXPECT_EQ(framePeriod(10.0), 100ms);
    EXPECT_EQ(framePeriod(1000.0), 1ms);
}

TEST(FramePeriod, OfARateNoScreenHasIsThatOf60Hz) {
    constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    for (const double rateHz : {0.0, -60.0, 1e-9, 9.99, 1000.01, 1e9, kNothing, kEndless, -kEndless})
        EXPECT_EQ(framePeriod(rateHz), 16666667ns) << rateHz;
}

}  // namespace
}  // namespace lumo
