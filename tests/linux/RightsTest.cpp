#include "linux/PresentInterface.h"

namespace lumo::test {
namespace {

/// The console when the node may not be opened.
class Rights : public PresentInterface {
protected:
    void SetUp() override {
        PresentInterface::SetUp();
        kernel.refuseOpening(vendor);
    }
    bool send() { return set(device, {0x06, 0x82}); }
};

TEST_F(Rights, AreAskedForByTheFirstReportOnly) {
    ASSERT_TRUE(onIo([] { return true; }));
    EXPECT_TRUE(printed().empty());
}

TEST_F(Rights, ThatAreMissingFailTheReportAndAreExplained) {
    EXPECT_FALSE(send());
    ASSERT_EQ(printed().size(), 1U);
    EXPECT_NE(printed().front().find("/dev/hidraw1"), std::string::npos);
    EXPECT_NE(printed().front().find("/etc/udev/rules.d/70-vexa-lumo-65.rules"), std::string::npos);
}

TEST_F(Rights, AreExplainedWithTheRuleForBothWaysToConnect) {
    EXPECT_FALSE(send());
    ASSERT_EQ(printed().size(), 1U);
    EXPECT_TRUE(printed().front().ends_with(
        "where no typing arrives:\n"
        "ACTION!=\"remove\", SUBSYSTEM==\"hidraw\", DEVPATH==\"*/0003:258A:010C.*|*/0003:3554:FA09.*\", "
        "ATTRS{bInterfaceClass}==\"03\", ATTRS{bInterfaceProtocol}==\"00\", TEST!=\"device/input\", "
        "TAG+=\"uaccess\""));
}

TEST_F(Rights, AreExplainedOnceHoweverManyReportsFail) {
    for (int i = 0; i < 5; ++i) EXPECT_FALSE(send());
    EXPECT_EQ(printed().size(), 1U);
}

TEST_F(Rights, ThatComeLaterAreUsedByTheNextReport) {
    EXPECT_FALSE(send());
    kernel.allowOpening(vendor);
    EXPECT_TRUE(send());
}

TEST_F(Rights, AreExplainedAnewForTheNextPlug) {
    EXPECT_FALSE(send());
    openManager();
    kernel.allowOpening(vendor);
    kernel.unplug(vendor);
    ASSERT_TRUE(untilRemoved(1));
    kernel.appear(vendor);
    kernel.refuseOpening(vendor);
    kernel.tell(vendor, "add");
    ASSERT_TRUE(untilMatched(1));
    EXPECT_FALSE(set(matched.back(), {0x06, 0x82}));
    EXPECT_EQ(printed().size(), 2U);
}

TEST_F(Rights, AreNotMentionedWhenTheNodeIsMissing) {
    kernel.allowOpening(vendor);
    kernel.vanish(vendor);
    EXPECT_FALSE(send());
    EXPECT_TRUE(printed().empty());
}

}  // namespace
}  // namespace lumo::test
