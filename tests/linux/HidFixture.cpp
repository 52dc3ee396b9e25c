#include "linux/HidFixture.h"

#include <algorithm>

namespace lumo::test {

void HidFixture::passEvents() {
    MockedInterface last = typingInterface();
    last.hidraw = 99;
    last.product = "the last event";
    const auto isLast = [&](const DeviceRef& device) { return device->product() == last.product; };

    kernel.plug(last);
    ASSERT_TRUE(loop.runUntil([&] { return std::any_of(matched.begin(), matched.end(), isLast); }));
    kernel.unplug(last);
    ASSERT_TRUE(loop.runUntil([&] { return std::any_of(removed.begin(), removed.end(), isLast); }));
    std::erase_if(matched, isLast);
    std::erase_if(removed, isLast);
}

DeviceRef HidFixture::plugged(const MockedInterface& interface) {
    const std::size_t before = matched.size();
    kernel.plug(interface);
    return untilMatched(before + 1) ? matched.back() : nullptr;
}

void HidFixture::unplugged(const MockedInterface& interface) {
    const std::size_t before = removed.size();
    kernel.unplug(interface);
    ASSERT_TRUE(untilRemoved(before + 1));
}

}  // namespace lumo::test
