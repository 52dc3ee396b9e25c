#include "linux/HidFixture.h"
#include "linux/LibudevFaults.h"

namespace lumo::test {
namespace {

class LostEvents : public HidFixture {
protected:
    MockedInterface vendor = vendorInterface();
    MockedInterface typing = typingInterface();
};

TEST_F(LostEvents, OfAnArrivalAreMadeUpFor) {
    openManager();
    loseArrivedEvents();
    kernel.plug(vendor);
    ASSERT_TRUE(untilMatched(1));
    EXPECT_EQ(matched.back()->maxFeatureReportSize(), 520);
}

TEST_F(LostEvents, OfARemovalAreMadeUpFor) {
    openManager();
    const DeviceRef device = plugged(vendor);
    loseArrivedEvents();
    kernel.unplug(vendor);
    ASSERT_TRUE(untilRemoved(1));
    EXPECT_EQ(removed, std::vector<DeviceRef>{device});
}

TEST_F(LostEvents, OfAReplugAreMadeUpFor) {
    openManager();
    const DeviceRef first = plugged(vendor);
    loseArrivedEvents();
    kernel.unplug(vendor);
    kernel.plug(vendor);
    ASSERT_TRUE(untilMatched(2));
    EXPECT_EQ(removed, std::vector<DeviceRef>{first});
    EXPECT_NE(matched.back(), first);
}

TEST_F(LostEvents, LeaveAloneWhatStayed) {
    openManager();
    const DeviceRef stayed = plugged(typing);
    loseArrivedEvents();
    kernel.plug(vendor);
    ASSERT_TRUE(untilMatched(2));
    EXPECT_TRUE(removed.empty());
    EXPECT_EQ(manager->devices().front(), stayed);
}

TEST_F(LostEvents, AreFollowedByTheNextOnes) {
    openManager();
    loseArrivedEvents();
    kernel.plug(typing);
    ASSERT_TRUE(untilMatched(1));
    EXPECT_TRUE(plugged(vendor));
}

/// The device manager handles different nodes side by side and may tell of the arrival first.
TEST_F(LostEvents, ADepartureThatIsToldAfterTheNextArrivalComesFirst) {
    openManager();
    const DeviceRef first = plugged(vendor);
    MockedInterface again = vendor;
    again.hidraw = 2;
    std::vector<std::string> order;
    manager->onRemoved(
        [&](const DeviceRef& device) { order.emplace_back(device == first ? "first goes" : "another"); });
    manager->onMatched([&](const DeviceRef&) { order.emplace_back("it comes"); });
    kernel.vanish(vendor);
    kernel.plug(again);
    ASSERT_TRUE(loop.runUntil([&] { return !order.empty() && order.back() == "it comes"; }));
    EXPECT_EQ(order, (std::vector<std::string>{"first goes", "it comes"}));
}

class NoMonitor : public HidFixture {
protected:
    void SetUp() override {
        HidFixture::SetUp();
        refuseMonitors(true);
    }
    void TearDown() override {
        refuseMonitors(false);
        HidFixture::TearDown();
    }
};

TEST_F(NoMonitor, RefusesToOpen) { EXPECT_FALSE(manager->open()); }

TEST_F(NoMonitor, MayBeHadLater) {
    EXPECT_FALSE(manager->open());
    refuseMonitors(false);
    openManager();
    EXPECT_TRUE(plugged(vendorInterface()));
}

}  // namespace
}  // namespace lumo::test
