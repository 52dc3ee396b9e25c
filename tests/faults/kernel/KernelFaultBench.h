// The program's models over the real HID layer, and two keyboards before the kernel.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "faults/FaultBench.h"
#include "faults/kernel/DaemonKeyboard.h"
#include "foundation/SerialQueue.h"
#include "support/FakedPlatform.h"
#include "support/PollLoop.h"

namespace lumo::test {

/// Everything but the keyboards is as in the program: its loop on the thread that runs this, its I/O thread, hidraw.
class KernelPlatform final : public FakedPlatform {
public:
    MainQueue mainQueue() override { return {loop}; }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) override;
    std::unique_ptr<HidManager> makeHidManager(IoQueue io) override;
    void print(std::string_view) override {}

    PollLoop loop;
    BlockingExecutor* ioQueue = nullptr;  // once it was made
};

/// The keyboards outlive it.
class KernelFaultBench final : public FaultBench {
public:
    KernelFaultBench(DaemonKeyboard& keyboard, DaemonKeyboard& another) : m_keyboard(keyboard), m_another(another) {}
    ~KernelFaultBench() override;

    SharedObjects& objects() override { return m_objects; }
    void plug() override;
    void unplug() override;
    void plugAnother() override { m_another.tell("plug"); }
    void tellFault(const std::string& line) override { m_keyboard.tell("fault " + line); }
    void clearFaults() override { m_keyboard.tell("clear"); }
    std::size_t transfers() override { return m_keyboard.transfers() + m_another.transfers(); }
    std::vector<std::uint8_t> keyTable() override;
    void when(std::size_t transfers, std::function<void()> act) override;
    bool runUntil(const std::function<bool()>& holds) override;

private:
    static constexpr auto kTick = std::chrono::milliseconds(1);
    [[nodiscard]] bool isIdleAfterAll();

    DaemonKeyboard& m_keyboard;
    DaemonKeyboard& m_another;
    KernelPlatform m_platform;
    SharedObjects m_objects{m_platform};
};

}  // namespace lumo::test
