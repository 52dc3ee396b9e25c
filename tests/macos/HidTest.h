// One manager over the recording IOKit. Main thread only.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "FakeCoreFoundation.h"
#include "FakeIoKit.h"
#include "platform/macos/IoKitHidManager.h"
#include "support/VirtualTime.h"

namespace lumo::test {

class HidTest : public testing::Test {
protected:
    using Told = std::pair<std::string, std::shared_ptr<HidDevice>>;

    void SetUp() override {
        hid = makeMacHidManager(time.mainQueue());
        hid->setDeviceMatching({{0x258A, 0x010C}, {0x3554, 0xFA09}});
        hid->onMatched([this](const auto& device) { told.emplace_back("matched", device); });
        hid->onRemoved([this](const auto& device) { told.emplace_back("removed", device); });
    }

    /// Whatever a test did, no object and no registration may be left behind.
    void TearDown() override {
        told.clear();
        hid.reset();
        time.settle();
        ioKit.reset();
        EXPECT_EQ(fakemac::liveObjects(), 0);
    }

    std::shared_ptr<fakemac::Interface> plugKeyboard() { return ioKit->plug(0x258A, 0x010C); }

    /// One turn of the CoreFoundation run loop, then what it posted.
    void turn() {
        ioKit->turn();
        time.settle();
    }

    /// The only device of a manager that has just been opened over this interface.
    std::shared_ptr<HidDevice> openedDevice() {
        EXPECT_TRUE(hid->open());
        const auto devices = hid->devices();
        EXPECT_EQ(devices.size(), 1U);
        return devices.empty() ? nullptr : devices.front();
    }

    VirtualTime time;
    std::unique_ptr<fakemac::FakeIoKit> ioKit = std::make_unique<fakemac::FakeIoKit>();
    std::unique_ptr<HidManager> hid;
    std::vector<Told> told;
};

inline CFTypeRef number(std::int32_t value) { return CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &value); }
inline CFTypeRef real(double value) { return CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, &value); }
inline CFTypeRef boolean() { return fakemac::referenceTo<CFBooleanRef>(new fakemac::Boolean(true)); }
inline CFTypeRef text(std::string utf8) {
    return fakemac::referenceTo<CFStringRef>(new fakemac::String(std::move(utf8)));
}

}  // namespace lumo::test
