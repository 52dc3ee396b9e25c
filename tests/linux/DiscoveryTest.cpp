#include "linux/HidFixture.h"

namespace lumo::test {
namespace {

class Discovery : public HidFixture {
protected:
    MockedInterface vendor = vendorInterface();
    MockedInterface typing = typingInterface();
};

TEST_F(Discovery, ListsBothInterfacesWithTheirFeatureReportSizes) {
    kernel.appear(typing);
    kernel.appear(vendor);
    std::vector<std::optional<std::int64_t>> sizes;
    for (const DeviceRef& device : manager->devices()) sizes.push_back(device->maxFeatureReportSize());
    EXPECT_EQ(sizes, (std::vector<std::optional<std::int64_t>>{std::nullopt, 520}));
}

TEST_F(Discovery, FindsTheReceiverByItsOwnIds) {
    vendor.ids = {0x3554, 0xFA09};
    kernel.appear(vendor);
    EXPECT_EQ(manager->devices().size(), 1U);
}

TEST_F(Discovery, DoesNotListADeviceThatMatchesOnlyHalf) {
    vendor.ids = {0x258A, 0xFA09};
    kernel.appear(vendor);
    EXPECT_TRUE(manager->devices().empty());
}

TEST_F(Discovery, DoesNotAnnounceAForeignDevice) {
    openManager();
    vendor.ids = {0x046D, 0xC31C};
    kernel.plug(vendor);
    passEvents();
    EXPECT_TRUE(matched.empty());
}

TEST_F(Discovery, ListsNothingWhereNothingIsPlugged) { EXPECT_TRUE(manager->devices().empty()); }

TEST_F(Discovery, AnnouncesAnArrival) {
    openManager();
    const DeviceRef device = plugged(vendor);
    ASSERT_TRUE(device);
    EXPECT_EQ(device->maxFeatureReportSize(), 520);
}

TEST_F(Discovery, AnnouncesAnInterfaceThatCannotBeOpened) {
    openManager();
    kernel.appear(vendor);
    kernel.refuseOpening(vendor);
    kernel.tell(vendor, "add");
    EXPECT_TRUE(untilMatched(1));
    kernel.allowOpening(vendor);
}

TEST_F(Discovery, AnnouncesOnlyInATurnOfTheLoop) {
    kernel.appear(vendor);
    ASSERT_TRUE(manager->open());
    kernel.tell(vendor, "add");
    EXPECT_TRUE(matched.empty());
}

TEST_F(Discovery, AnnouncesWhatWasPresentAtOpeningAndNotListed) {
    kernel.appear(vendor);
    openManager();
    EXPECT_EQ(matched.size(), 1U);
}

TEST_F(Discovery, AnnouncesNothingThatItHasListed) {
    kernel.appear(vendor);
    ASSERT_TRUE(manager->open());
    ASSERT_EQ(manager->devices().size(), 1U);
    kernel.tell(vendor, "add");  // as when it is plugged between the two
    passEvents();
    EXPECT_TRUE(matched.empty());
}

TEST_F(Discovery, ListsTheVeryObjectThatItHasAnnounced) {
    openManager();
    const DeviceRef device = plugged(vendor);
    EXPECT_EQ(manager->devices(), std::vector<DeviceRef>{device});
}

TEST_F(Discovery, ListsTheSameObjectEveryTime) {
    kernel.appear(vendor);
    const auto first = manager->devices();
    EXPECT_EQ(manager->devices(), first);
}

TEST_F(Discovery, AnnouncesOnceWhatIsToldTwice) {
    openManager();
    kernel.plug(vendor);
    kernel.tell(vendor, "add");
    kernel.tell(vendor, "change");
    passEvents();
    EXPECT_EQ(matched.size(), 1U);
    EXPECT_TRUE(removed.empty());
}

TEST_F(Discovery, TellsOfTheRemovalOfWhatItAnnounced) {
    openManager();
    const DeviceRef device = plugged(vendor);
    unplugged(vendor);
    EXPECT_EQ(removed, std::vector<DeviceRef>{device});
}

TEST_F(Discovery, TellsOfTheRemovalOfWhatItListed) {
    kernel.appear(vendor);
    ASSERT_TRUE(manager->open());
    const auto listed = manager->devices();
    unplugged(vendor);
    EXPECT_EQ(removed, listed);
}

TEST_F(Discovery, TellsWhichOfTwoInterfacesIsGone) {
    openManager();
    const DeviceRef first = plugged(typing);
    ASSERT_TRUE(plugged(vendor));
    unplugged(typing);
    EXPECT_EQ(removed, std::vector<DeviceRef>{first});
}

TEST_F(Discovery, ListsNoRemovedInterface) {
    openManager();
    ASSERT_TRUE(plugged(vendor));
    unplugged(vendor);
    EXPECT_TRUE(manager->devices().empty());
}

TEST_F(Discovery, SaysNothingOfTheRemovalOfAnUnknownInterface) {
    openManager();
    kernel.appear(vendor);
    kernel.unplug(vendor);
    passEvents();
    EXPECT_TRUE(removed.empty());
}

TEST_F(Discovery, MakesANewObjectForTheNextPlugOfTheSamePath) {
    openManager();
    const DeviceRef first = plugged(vendor);
    unplugged(vendor);
    const DeviceRef second = plugged(vendor);
    ASSERT_TRUE(second);
    EXPECT_NE(first, second);
}

TEST_F(Discovery, TellsTheRemovalFirstWhenAReplugComesWithoutOne) {
    openManager();
    const DeviceRef first = plugged(vendor);
    kernel.vanish(vendor);
    std::size_t removedBeforeMatch = 0;
    manager->onMatched([&](const DeviceRef& device) {
        removedBeforeMatch = removed.size();
        matched.push_back(device);
    });
    ASSERT_TRUE(plugged(vendor));
    EXPECT_EQ(removedBeforeMatch, 1U);
    EXPECT_EQ(removed, std::vector<DeviceRef>{first});
}

TEST_F(Discovery, DoesNotListAnObjectWhoseDeviceWasPluggedAnewUnnoticed) {
    openManager();
    ASSERT_TRUE(plugged(vendor));
    kernel.vanish(vendor);
    kernel.appear(vendor);
    EXPECT_TRUE(manager->devices().empty());
}

TEST_F(Discovery, SurvivesADeviceThatIsGoneBeforeItsArrivalIsRead) {
    openManager();
    kernel.plug(vendor);
    kernel.vanish(vendor);
    passEvents();
    EXPECT_TRUE(matched.empty());
}

TEST_F(Discovery, IsQuietAfterTheManagerIsGone) {
    kernel.appear(vendor);
    ASSERT_TRUE(manager->open());
    manager.reset();
    loop.runReady();
    EXPECT_TRUE(matched.empty());
}

TEST_F(Discovery, OpensASecondTimeWithoutAnnouncingTwice) {
    openManager();
    openManager();
    ASSERT_TRUE(plugged(vendor));
    passEvents();
    EXPECT_EQ(matched.size(), 1U);
}

TEST_F(Discovery, LetsACallbackAskForTheDevices) {
    std::vector<DeviceRef> listed;
    manager->onMatched([&](const DeviceRef& device) {
        listed = manager->devices();
        matched.push_back(device);
    });
    openManager();
    const DeviceRef device = plugged(vendor);
    EXPECT_EQ(listed, std::vector<DeviceRef>{device});
}

}  // namespace
}  // namespace lumo::test
