// What is made ahead of time: one piece after the other, on other threads.
#include "foundation/MakeAhead.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>

namespace lumo {
namespace {

TEST(MakeAhead, IsAnotherThreadsWork) {
    EXPECT_NE(makeAhead([] { return std::this_thread::get_id(); }).get(), std::this_thread::get_id());
}

TEST(MakeAhead, APieceBeginsWhenTheOneBeforeIsDone) {
    std::promise<void> gate;
    std::atomic<bool> hasSecondBegun = false;
    auto first = makeAhead([&] {
        gate.get_future().wait();
        for (int turn = 0; turn < 1000; ++turn) std::this_thread::yield();  // room for one that would not wait
        return hasSecondBegun.load();
    });
    auto second = makeAhead([&] { hasSecondBegun = true; });
    gate.set_value();
    second.get();
    EXPECT_TRUE(hasSecondBegun);
    EXPECT_FALSE(first.get());
}

TEST(MakeAhead, APieceThatNobodyHasFetchedYetHoldsNothingUp) {
    auto first = makeAhead([] { return 1; });
    EXPECT_EQ(makeAhead([] { return 2; }).get(), 2);
    EXPECT_EQ(first.get(), 1);
}

TEST(MakeAhead, APieceThatFailsHoldsNothingUp) {
    auto first = makeAhead([]() -> int { throw std::runtime_error("broken"); });
    EXPECT_EQ(makeAhead([] { return 2; }).get(), 2);
    EXPECT_THROW((void)first.get(), std::runtime_error);
}

TEST(MakeAhead, HandsOverWhatCannotBeCopied) {
    EXPECT_EQ(*makeAhead([] { return std::make_unique<int>(7); }).get(), 7);
}

TEST(MakeAhead, AResultThatNobodyWantsIsMadeAllTheSame) {
    std::atomic<bool> isMade = false;
    {
        const auto unwanted = makeAhead([&] { isMade = true; });
    }
    makeAhead([] {}).get();
    EXPECT_TRUE(isMade);
}

TEST(MakeAhead, AResultIsThereBeforeItsThreadIsGone) {
    static std::promise<void> gate;
    static std::atomic<bool> isGone = false;
    struct Lingering {
        ~Lingering() {
            gate.get_future().wait();
            isGone = true;
        }
    };
    auto first = makeAhead([] {
        thread_local const Lingering atTheEnd;
        static_cast<void>(atTheEnd);
        return 1;
    });
    EXPECT_EQ(first.get(), 1);
    EXPECT_EQ(makeAhead([] { return 2; }).get(), 2);
    EXPECT_FALSE(isGone);
    gate.set_value();
    finishMakingAhead();
    EXPECT_TRUE(isGone);
}

TEST(MakeAhead, NothingIsLeftToFinishAtFirst) {
    finishMakingAhead();
    EXPECT_EQ(makeAhead([] { return 1; }).get(), 1);
    finishMakingAhead();
    finishMakingAhead();
}

}  // namespace
}  // namespace lumo
