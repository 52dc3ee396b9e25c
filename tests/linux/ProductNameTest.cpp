#include "linux/HidFixture.h"

namespace lumo::test {
namespace {

class ProductName : public HidFixture {
protected:
    /// As the manager tells it for such an interface.
    std::optional<std::string> nameOf(const MockedInterface& interface) {
        kernel.appear(interface);
        const auto devices = manager->devices();
        return devices.size() == 1 ? devices.front()->product() : "no single device";
    }

    MockedInterface vendor = vendorInterface();
};

TEST_F(ProductName, IsTheUsbDevicesOwnAndNotWhatTheKernelMakesOfIt) {
    vendor.product = "Lumo 65";
    vendor.hidName = "Maker Lumo 65";
    EXPECT_EQ(nameOf(vendor), "Lumo 65");
}

TEST_F(ProductName, IsAbsentWhereTheUsbDeviceHasNone) {
    vendor.product = std::nullopt;
    EXPECT_EQ(nameOf(vendor), std::nullopt);
}

TEST_F(ProductName, IsEmptyWhereTheUsbDeviceTellsAnEmptyOne) {
    vendor.product = "";
    EXPECT_EQ(nameOf(vendor), "");
}

TEST_F(ProductName, KeepsBytesOutsideAscii) {
    vendor.product = "L\xC3\xBCmo \xE2\x8C\xA8";
    EXPECT_EQ(nameOf(vendor), "L\xC3\xBCmo \xE2\x8C\xA8");
}

TEST_F(ProductName, KeepsHostileBytesAsTheyAre) {
    const std::string hostile("\x1B[31m\0<b>\n\xFF\xFE%s\n", 15);
    vendor.product = hostile;
    EXPECT_EQ(nameOf(vendor), hostile);
}

TEST_F(ProductName, IsNoLongerThanSysfsGives) {
    vendor.product = std::string(100'000, 'x');
    EXPECT_EQ(nameOf(vendor), std::string(4096, 'x'));
}

TEST_F(ProductName, IsTheHidNameWhereThereIsNoUsbParent) {
    vendor.hasUsbParent = false;
    vendor.hidName = "Virtual Lumo";
    EXPECT_EQ(nameOf(vendor), "Virtual Lumo");
}

TEST_F(ProductName, IsAnEmptyHidNameWhereThereIsNoUsbParent) {
    vendor.hasUsbParent = false;
    vendor.hidName = "";
    EXPECT_EQ(nameOf(vendor), "");
}

}  // namespace
}  // namespace lumo::test
