#include "udev/InterfaceProperty.h"

#include <gtest/gtest.h>

#include "linux/MockedKernel.h"

namespace lumo::test {
namespace {

class InterfaceProperty : public testing::Test {
protected:
    MockedKernel kernel;

    std::string of(const MockedInterface& interface) {
        kernel.appear(interface);
        return interfaceProperty(kernel.sysPath(interface));
    }
};

TEST_F(InterfaceProperty, KnowsTheConfigurationInterfaceByItsFeatureReport) {
    EXPECT_EQ(of(vendorInterface()), "VEXA_LUMO_65_INTERFACE=configuration");
}

TEST_F(InterfaceProperty, IsAnotherForTheTypingInterface) {
    EXPECT_EQ(of(typingInterface()), "VEXA_LUMO_65_INTERFACE=other");
}

TEST_F(InterfaceProperty, IsAnotherWhenTheFeatureReportIsAByteTooShort) {
    MockedInterface interface = vendorInterface();
    interface.descriptor[17] = 0x06;  // a count of 0x0206 bytes, and the id
    EXPECT_EQ(of(interface), "VEXA_LUMO_65_INTERFACE=other");
}

TEST_F(InterfaceProperty, IsAnotherWhereThereIsNoDevice) {
    EXPECT_EQ(interfaceProperty("/sys/no-such-device"), "VEXA_LUMO_65_INTERFACE=other");
}

}  // namespace
}  // namespace lumo::test
