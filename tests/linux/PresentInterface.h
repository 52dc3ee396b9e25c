// The configuration interface, there from the start and in our hands.
#pragma once

#include "linux/HidFixture.h"

namespace lumo::test {

class PresentInterface : public HidFixture {
protected:
    MockedInterface vendor = vendorInterface();
    DeviceRef device;

    void SetUp() override {
        HidFixture::SetUp();
        kernel.appear(vendor);
        const auto devices = manager->devices();
        ASSERT_EQ(devices.size(), 1U);
        device = devices.front();
    }
    void TearDown() override {
        device.reset();
        HidFixture::TearDown();
    }
};

}  // namespace lumo::test
