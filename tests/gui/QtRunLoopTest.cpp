#include "platform/qt/QtRunLoop.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QEventLoop>
#include <memory>
#include <thread>
#include <vector>

namespace lumo {
namespace {

using namespace std::chrono_literals;

class QtLoop : public testing::Test {
protected:
    QtRunLoop loop;
    QEventLoop turns;

    void runUntilQuit() { turns.exec(); }
};

TEST_F(QtLoop, APostedTaskNeverRunsInsidePost) {
    bool hasRun = false;
    loop.post([&] {
        hasRun = true;
        turns.quit();
    });
    EXPECT_FALSE(hasRun);
    runUntilQuit();
    EXPECT_TRUE(hasRun);
}

TEST_F(QtLoop, PostsKeepTheirOrder) {
    std::vector<int> order;
    for (int i = 0; i < 100; ++i) loop.post([&order, i] { order.push_back(i); });
    loop.post([&] { turns.quit(); });
    runUntilQuit();
    ASSERT_EQ(order.size(), 100U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST_F(QtLoop, APostFromAPlainThreadRunsOnTheMainThread) {
    std::thread::id ranOn;
    std::thread other([&] {
        loop.post([&] {
            ranOn = std::this_thread::get_id();
            turns.quit();
        });
    });
    runUntilQuit();
    other.join();
    EXPECT_EQ(ranOn, std::this_thread::get_id());
}

TEST_F(QtLoop, ADelayedTaskComesNoEarlierThanAsked) {
    const auto start = std::chrono::steady_clock::now();
    Duration waited{0};
    loop.postAfter(1500us, [&] {
        waited = std::chrono::duration_cast<Duration>(std::chrono::steady_clock::now() - start);
        turns.quit();
    });
    runUntilQuit();
    EXPECT_GE(waited, 1500us);
}

TEST_F(QtLoop, EqualDelaysRunInPostingOrder) {
    std::vector<int> order;
    for (int i = 0; i < 10; ++i) {
        loop.postAfter(5ms, [&order, this, i] {
            order.push_back(i);
            if (i == 9) turns.quit();
        });
    }
    runUntilQuit();
    EXPECT_EQ(order, (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST_F(QtLoop, ARepeatingTaskGoesOnUntilItsRegistrationIsDropped) {
    int ticks = 0;
    std::unique_ptr<Registration> registration;
    registration = loop.repeatEvery(1ms, [&] {
        if (++ticks < 3) return;
        registration.reset();  // from inside the task itself
        loop.postAfter(20ms, [&] { turns.quit(); });
    });
    runUntilQuit();
    EXPECT_EQ(ticks, 3);
}

class Pipe {
public:
    Pipe() { m_isOpen = pipe2(m_ends.data(), O_CLOEXEC) == 0; }
    ~Pipe() {
        for (const int end : m_ends) close(end);
    }
    [[nodiscard]] int readEnd() const { return m_ends[0]; }
    [[nodiscard]] bool write() const { return m_isOpen && ::write(m_ends[1], "x", 1) == 1; }
    void drain() const {
        char byte = 0;
        (void)!::read(m_ends[0], &byte, 1);
    }

private:
    std::array<int, 2> m_ends{-1, -1};
    bool m_isOpen = false;
};

TEST_F(QtLoop, AReadableDescriptorRunsItsTaskEachTime) {
    const Pipe pipe;
    int reads = 0;
    const auto watch = loop.whenReadable(pipe.readEnd(), [&] {
        pipe.drain();
        if (++reads == 2) return turns.quit();
        ASSERT_TRUE(pipe.write());
    });
    ASSERT_TRUE(pipe.write());
    runUntilQuit();
    EXPECT_EQ(reads, 2);
}

TEST_F(QtLoop, ADroppedWatchIsSilent) {
    const Pipe pipe;
    bool wasCalled = false;
    auto watch = loop.whenReadable(pipe.readEnd(), [&] { wasCalled = true; });
    ASSERT_TRUE(pipe.write());
    watch.reset();
    loop.postAfter(5ms, [&] { turns.quit(); });
    runUntilQuit();
    EXPECT_FALSE(wasCalled);
}

TEST(QtLoopLifetime, WhatHasNotRunWhenTheLoopGoesNeverRuns) {
    bool wasCalled = false;
    QEventLoop turns;
    {
        QtRunLoop loop;
        loop.post([&] { wasCalled = true; });
        loop.postAfter(1ms, [&] { wasCalled = true; });
    }
    QtRunLoop later;
    later.postAfter(10ms, [&] { turns.quit(); });
    turns.exec();
    EXPECT_FALSE(wasCalled);
}

TEST(QtLoopThatGoes, LeavesRegistrationsThatEndLater) {
    auto loop = std::make_unique<QtRunLoop>();
    auto repeating = loop->repeatEvery(1h, [] {});
    loop->post([kept = std::shared_ptr<Registration>(std::move(repeating))] {});  // never runs
    auto other = loop->repeatEvery(1h, [] {});
    loop.reset();
    other.reset();
}

}  // namespace
}  // namespace lumo
