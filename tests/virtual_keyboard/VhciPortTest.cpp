#include "usbip/VhciPort.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace lumo::vk {
namespace {

constexpr const char* kStatus =
    "hub port sta spd dev      sockfd local_busid\n"
    "hs  0000 006 002 00010002 000006 1-1\n"
    "hs  0001 004 000 00000000 000000 0-0\n"
    "hs  0002 004 000 00000000 000000 0-0\n"
    "ss  0008 004 000 00000000 000000 0-0\n";

TEST(FreePorts, AreThoseOfTheHighSpeedHubThatNobodyUses) {
    std::istringstream status(kStatus);
    EXPECT_EQ(freePorts(status), (std::vector<unsigned>{1, 2}));
}

TEST(FreePorts, AreNoneInATextOfAnotherForm) {
    std::istringstream nothing;
    EXPECT_TRUE(freePorts(nothing).empty());
    std::istringstream other("no such device\nhs none\n");
    EXPECT_TRUE(freePorts(other).empty());
}

/// The controller's folder in sysfs, as the kernel lays it out.
class PortFolder : public testing::Test {
protected:
    std::string controller = (std::filesystem::temp_directory_path() / "lumo-vhci-XXXXXX").string();

    void SetUp() override {
        ASSERT_NE(::mkdtemp(controller.data()), nullptr);
        makeFolder("usb1/1-0:1.0");
        makeFolder("usb2/2-0:1.0");
    }
    void TearDown() override { std::filesystem::remove_all(controller); }

    void makeFolder(const std::string& name) const { std::filesystem::create_directories(controller + '/' + name); }
};

TEST_F(PortFolder, HoldsTheDeviceThatWasPluggedIntoThePort) {
    EXPECT_FALSE(holdsDevice(controller, 0));
    makeFolder("usb1/1-1");
    EXPECT_TRUE(holdsDevice(controller, 0));
    EXPECT_FALSE(holdsDevice(controller, 1));
}

TEST_F(PortFolder, IsFoundOnWhateverBusTheControllerHas) {
    std::filesystem::remove_all(controller + "/usb1");
    makeFolder("usb11/11-3");
    EXPECT_TRUE(holdsDevice(controller, 2));
    EXPECT_FALSE(holdsDevice(controller, 0));
}

}  // namespace
}  // namespace lumo::vk
