#include "faults/kernel/KernelFaultBench.h"

#include <charconv>
#include <sstream>
#include <stdexcept>

#include "faults/kernel/Belongings.h"
#include "platform/linux/LinuxHidManager.h"

namespace lumo::test {

std::unique_ptr<BlockingExecutor> KernelPlatform::makeIoQueue(std::string_view) {
    auto queue = std::make_unique<SerialQueue>();
    ioQueue = queue.get();
    return queue;
}

std::unique_ptr<HidManager> KernelPlatform::makeHidManager(IoQueue io) {
    return makeLinuxHidManager({loop}, io, [](std::string_view) {});
}

KernelFaultBench::~KernelFaultBench() {
    // Nodes are closed by the I/O queue, as long as there is one; the program leaves the last to the end of the
    // process.
    (void)runUntil([] { return !Belongings().haveNode(); });
    m_objects.finishDeviceTraffic();
}

/// A keyboard that is about to vanish is still plugged in, and takes a moment to be gone.
void KernelFaultBench::plug() {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (m_keyboard.ask("plug").starts_with("error already")) {
        if (std::chrono::steady_clock::now() > end) throw std::runtime_error("the keyboard does not vanish");
    }
}

void KernelFaultBench::unplug() {
    m_keyboard.tell("unplug");
    m_another.tell("unplug");
}

std::vector<std::uint8_t> KernelFaultBench::keyTable() {
    std::istringstream words(m_keyboard.tell("registers"));
    std::string name;
    std::string hex;
    while (words >> name >> hex && name != "keys") {
    }
    std::vector<std::uint8_t> bytes(hex.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::from_chars(hex.data() + 2 * i, hex.data() + 2 * i + 2, bytes[i], 16);
    }
    return bytes;
}

void KernelFaultBench::when(std::size_t transfers, std::function<void()> act) {
    m_platform.loop.postAfter(kTick, [this, transfers, act = std::move(act)] {
        if (this->transfers() >= transfers) return act();
        when(transfers, act);
    });
}

bool KernelFaultBench::runUntil(const std::function<bool()>& holds) {
    constexpr auto kLimit = std::chrono::seconds(30);  // six times as long as the kernel waits for an answer
    const auto tick = m_platform.loop.repeatEvery(kTick, [] {});
    return m_platform.loop.runUntil([&] { return holds() && isIdleAfterAll() && holds(); }, kLimit);
}

/// Lets pass what the I/O thread has still to do, and what it then tells the main thread.
bool KernelFaultBench::isIdleAfterAll() {
    auto isThrough = std::make_shared<bool>(false);
    m_platform.ioQueue->post([this, isThrough] { m_platform.loop.post([isThrough] { *isThrough = true; }); });
    return m_platform.loop.runUntil([isThrough] { return *isThrough; });
}

}  // namespace lumo::test
