#include "linux/HidFixture.h"
#include "linux/LibudevFaults.h"

namespace lumo::test {
namespace {

/// A keyboard that the kernel shows already, while udev has not set the rights of its node yet.
class SettingUp : public HidFixture {
protected:
    MockedInterface vendor = vendorInterface();

    void SetUp() override {
        HidFixture::SetUp();
        letUdevBeDone(false);
        kernel.appear(vendor);
    }
    void TearDown() override {
        letUdevBeDone(true);
        letUdevRun(true);
        HidFixture::TearDown();
    }
};

TEST_F(SettingUp, KeepsAnInterfaceFromBeingListed) { EXPECT_TRUE(manager->devices().empty()); }

TEST_F(SettingUp, KeepsAnInterfaceFromBeingAnnouncedAtOpening) {
    openManager();
    EXPECT_TRUE(matched.empty());
}

TEST_F(SettingUp, EndsWithTheAnnouncement) {
    openManager();
    ASSERT_TRUE(manager->devices().empty());
    letUdevBeDone(true);
    kernel.tell(vendor, "add");
    passEvents();
    ASSERT_EQ(matched.size(), 1U);
    EXPECT_EQ(matched.front()->maxFeatureReportSize(), 520);
}

TEST_F(SettingUp, IsNotWaitedForWhereNoUdevRuns) {
    letUdevRun(false);
    EXPECT_EQ(manager->devices().size(), 1U);
}

}  // namespace
}  // namespace lumo::test
