#include "foundation/SerialQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>
#include <vector>

namespace lumo {
namespace {

using namespace std::chrono_literals;

// What the tasks use is declared before the queue, whose end waits for the task under way.

TEST(SerialQueue, RunsTasksInOrderOnOneThreadOfItsOwn) {
    std::vector<int> order;
    std::vector<std::thread::id> threads;
    std::promise<void> done;
    SerialQueue queue;
    for (int i = 0; i < 100; ++i) {
        queue.post([&, i] {
            order.push_back(i);
            threads.push_back(std::this_thread::get_id());
        });
    }
    queue.post([&] { done.set_value(); });
    done.get_future().wait();
    ASSERT_EQ(order.size(), 100U);
    for (int i = 0; i < 100; ++i) EXPECT_EQ(order[static_cast<std::size_t>(i)], i);
    for (const auto id : threads) EXPECT_EQ(id, threads.front());
    EXPECT_NE(threads.front(), std::this_thread::get_id());
}

TEST(SerialQueue, PreparesItsThreadBeforeTheFirstTask) {
    std::atomic<bool> prepared = false;
    std::promise<bool> seen;
    SerialQueue queue([&] { prepared = true; });
    queue.post([&] { seen.set_value(prepared); });
    EXPECT_TRUE(seen.get_future().get());
}

TEST(SerialQueue, StoppingEndsAPauseAtOnceAndBeginsNothingMore) {
    std::promise<void> pausing;
    std::atomic<bool> second = false;
    SerialQueue queue;
    queue.post([&] {
        pausing.set_value();
        queue.pause(1h);
    });
    queue.post([&] { second = true; });
    pausing.get_future().wait();
    queue.stop();
    EXPECT_TRUE(queue.isStopping());
    queue.post([&] { second = true; });
    queue.finish();  // would take an hour if the pause went on
    EXPECT_FALSE(second);
}

TEST(SerialQueue, StoppingReturnsWhileATaskHangs) {
    std::promise<void> hanging;
    std::promise<void> release;
    SerialQueue queue;
    queue.post([&] {
        hanging.set_value();
        release.get_future().wait();
    });
    hanging.get_future().wait();
    queue.stop();  // returns although the task is still under way: it is released only below
    EXPECT_TRUE(queue.isStopping());
    release.set_value();
}

TEST(SerialQueue, TasksPostedFromManyThreadsAllRun) {
    int ran = 0;
    std::promise<void> done;
    SerialQueue queue;
    {
        std::vector<std::jthread> posters;
        for (int t = 0; t < 4; ++t) {
            posters.emplace_back([&] {
                for (int i = 0; i < 250; ++i) queue.post([&] { ++ran; });
            });
        }
    }
    queue.post([&] { done.set_value(); });
    done.get_future().wait();
    EXPECT_EQ(ran, 1000);
}

TEST(SerialQueue, ADroppedTaskIsDestroyed) {
    std::promise<void> hanging;
    std::promise<void> release;
    SerialQueue queue;
    auto owned = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = owned;
    queue.post([&] {
        hanging.set_value();
        release.get_future().wait();
    });
    queue.post([owned = std::move(owned)] {});
    hanging.get_future().wait();
    queue.stop();
    EXPECT_TRUE(watched.expired());
    release.set_value();
}

}  // namespace
}  // namespace lumo
