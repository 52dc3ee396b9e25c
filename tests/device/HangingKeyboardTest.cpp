// A keyboard that stops answering holds up its own I/O thread and nothing else. Real threads, proven by structure:
// the I/O thread is parked inside the exchange while the main thread does all its work.
#include <gtest/gtest.h>

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

#include "app/SharedObjects.h"
#include "foundation/SerialQueue.h"
#include "support/FakedPlatform.h"
#include "support/OneDeviceManager.h"

namespace lumo {
namespace {

/// The main thread's loop, turned by hand.
class HandTurnedLoop final : public RunLoop {
public:
    void post(Task task) override {
        const std::lock_guard lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    void postAfter(Duration, Task) override { std::abort(); }
    std::unique_ptr<Registration> repeatEvery(Duration, Task) override { std::abort(); }
    std::unique_ptr<Registration> whenReadable(int, Task) override { std::abort(); }

    /// Runs what has been posted so far; returns how many tasks that were.
    int turn() {
        std::deque<Task> tasks;
        {
            const std::lock_guard lock(m_mutex);
            tasks.swap(m_tasks);
        }
        for (const Task& task : tasks) task();
        return static_cast<int>(tasks.size());
    }

private:
    std::mutex m_mutex;
    std::deque<Task> m_tasks;
};

/// Answers every exchange but the one with the given number, which parks until it is released.
class ParkingDevice final : public HidDevice {
public:
    explicit ParkingDevice(int parkAt) : m_parkAt(parkAt) {}

    std::optional<std::int64_t> maxFeatureReportSize() const override { return 520; }
    std::optional<std::string> product() const override { return std::nullopt; }
    bool setFeatureReport(std::uint8_t, std::span<const std::uint8_t>) override { return exchange(); }
    std::optional<std::size_t> getFeatureReport(std::uint8_t, std::span<std::uint8_t> buffer) override {
        if (!exchange()) return std::nullopt;
        buffer[1] = 0x82;
        return buffer.size();
    }

    void waitUntilParked() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isParked; });
    }
    bool isParked() {
        const std::lock_guard lock(m_mutex);
        return m_isParked;
    }
    void release() {
        {
            const std::lock_guard lock(m_mutex);
            m_isReleased = true;
        }
        m_changed.notify_all();
    }
    int exchanges() {
        const std::lock_guard lock(m_mutex);
        return m_exchanges;
    }

private:
    bool exchange() {
        std::unique_lock lock(m_mutex);
        if (m_exchanges++ != m_parkAt) return true;
        m_isParked = true;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_isReleased; });
        m_isParked = false;
        return false;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    const int m_parkAt;
    int m_exchanges = 0;
    bool m_isParked = false;
    bool m_isReleased = false;
};

class ThreadedPlatform final : public test::FakedPlatform {
public:
    explicit ThreadedPlatform(std::shared_ptr<HidDevice> device) : m_device(std::move(device)) {}
    MainQueue mainQueue() override { return {loop}; }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view) override { return std::make_unique<SerialQueue>(); }
    std::unique_ptr<HidManager> makeHidManager(IoQueue) override {
        return std::make_unique<test::OneDeviceManager>(m_device);
    }
    void print(std::string_view) override {}
    HandTurnedLoop loop;

private:
    std::shared_ptr<HidDevice> m_device;
};

/// The handshake is exchanges 0 and 1, an effect 2 to 7, an upload 8 to 13.
class HangingKeyboard : public testing::TestWithParam<int> {
protected:
    std::shared_ptr<ParkingDevice> device = std::make_shared<ParkingDevice>(GetParam());
    ThreadedPlatform platform{device};
    SharedObjects objects{platform};

    void giveCommandsUntilItHangs() {
        objects.vexaProtocol().setLightingMode(5);
        objects.keyboardModel().syncToDevice();
        device->waitUntilParked();
    }
    void TearDown() override { device->release(); }
};

TEST_P(HangingKeyboard, LeavesTheMainLoopTurning) {
    giveCommandsUntilItHangs();
    platform.loop.turn();
    bool ran = false;
    platform.loop.post([&] { ran = true; });
    objects.vexaProtocol().setLightingMode(2);  // returns at once
    EXPECT_GE(platform.loop.turn(), 1);
    EXPECT_TRUE(ran);
    EXPECT_EQ(objects.vexaProtocol().activeModeId.get(), 2);
    EXPECT_TRUE(device->isParked());
}

TEST_P(HangingKeyboard, LeavesTheMainLoopTurningWhateverWaitsBehindIt) {
    giveCommandsUntilItHangs();
    for (int i = 0; i < 200; ++i) {
        objects.vexaProtocol().setLightingMode(1 + i % 20);
        platform.loop.turn();
    }
    bool ran = false;
    platform.loop.post([&] { ran = true; });
    platform.loop.turn();
    EXPECT_TRUE(ran);
    EXPECT_EQ(objects.vexaProtocol().activeModeId.get(), 20);
    EXPECT_TRUE(device->isParked());
    EXPECT_EQ(device->exchanges(), GetParam() + 1);
}

TEST_P(HangingKeyboard, IsNotWaitedForWhenQuitting) {
    giveCommandsUntilItHangs();
    objects.stopDeviceTraffic();  // returns while the exchange is still under way
    EXPECT_TRUE(device->isParked());
    EXPECT_EQ(device->exchanges(), GetParam() + 1);
}

TEST_P(HangingKeyboard, GetsNoFurtherReportOnceTheProgramIsQuitting) {
    giveCommandsUntilItHangs();
    objects.stopDeviceTraffic();
    device->release();
    objects.finishDeviceTraffic();
    EXPECT_EQ(device->exchanges(), GetParam() + 1);
}

INSTANTIATE_TEST_SUITE_P(AtExchange, HangingKeyboard, testing::Range(0, 14));

}  // namespace
}  // namespace lumo
