// The Linux HID layer over the mocked kernel, with a real run loop and a real I/O thread.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/SerialQueue.h"
#include "linux/MockedKernel.h"
#include "platform/linux/LinuxHidManager.h"
#include "support/PollLoop.h"

namespace lumo::test {

using DeviceRef = std::shared_ptr<HidDevice>;

class HidFixture : public testing::Test {
protected:
    MockedKernel kernel;  // goes last, when every node is closed
    PollLoop loop;
    SerialQueue ioThread;
    std::vector<DeviceRef> matched;
    std::vector<DeviceRef> removed;
    std::unique_ptr<HidManager> manager =
        makeLinuxHidManager({loop}, {ioThread}, [this](std::string_view text) { keepPrinted(text); });

    void SetUp() override {
        manager->setDeviceMatching({{0x258A, 0x010C}, {0x3554, 0xFA09}});
        manager->onMatched([this](const DeviceRef& device) { matched.push_back(device); });
        manager->onRemoved([this](const DeviceRef& device) { removed.push_back(device); });
    }

    /// Opens the manager and lets the turn pass in which it announces what is present.
    void openManager() {
        ASSERT_TRUE(manager->open());
        loop.runReady();
    }

    [[nodiscard]] bool untilMatched(std::size_t count) {
        return loop.runUntil([this, count] { return matched.size() >= count; });
    }
    [[nodiscard]] bool untilRemoved(std::size_t count) {
        return loop.runUntil([this, count] { return removed.size() >= count; });
    }

    /// For what the mock does later, on a thread of its own: it closes its end of a node some time after ours.
    [[nodiscard]] bool becomes(const std::function<bool()>& condition) {
        const auto tick = loop.repeatEvery(std::chrono::milliseconds(1), [] {});
        return loop.runUntil(condition);
    }

    /// What was told before it has arrived when this returns: events keep their order, and its own come last.
    void passEvents();

    /// Plugs it and waits until it is announced.
    DeviceRef plugged(const MockedInterface& interface);
    /// The same, the other way.
    void unplugged(const MockedInterface& interface);

    /// Runs on the I/O thread and waits for the result.
    template <typename F>
    auto onIo(F work) -> decltype(work()) {
        std::packaged_task<decltype(work())()> task(std::move(work));
        auto result = task.get_future();
        auto shared = std::make_shared<decltype(task)>(std::move(task));
        ioThread.post([shared] { (*shared)(); });
        return result.get();
    }

    bool set(const DeviceRef& device, const std::vector<std::uint8_t>& bytes) {
        return onIo([&] { return device->setFeatureReport(0x06, bytes); });
    }

    std::optional<std::size_t> get(const DeviceRef& device, std::vector<std::uint8_t>& buffer) {
        return onIo([&] { return device->getFeatureReport(0x06, buffer); });
    }

    std::vector<std::string> printed() {
        const std::lock_guard lock(m_printMutex);
        return m_printed;
    }

    /// Lets go of the manager and of every device, and waits until their nodes are closed.
    void TearDown() override {
        manager.reset();
        matched.clear();
        removed.clear();
        if (!ioThread.isStopping()) onIo([] { return true; });
    }

private:
    void keepPrinted(std::string_view text) {
        const std::lock_guard lock(m_printMutex);
        m_printed.emplace_back(text);
    }

    std::mutex m_printMutex;
    std::vector<std::string> m_printed;
};

}  // namespace lumo::test
