#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <system_error>

#include "linux/HidFixture.h"

namespace lumo::test {
namespace {

std::ptrdiff_t countEntries(const char* folder) {
    return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator{});
}
std::ptrdiff_t openDescriptors() { return countEntries("/proc/self/fd"); }
std::ptrdiff_t threads() { return countEntries("/proc/self/task"); }

/// The descriptors of hidraw nodes, those of nodes that are unplugged by now among them.
std::set<int> openNodes() {
    std::set<int> nodes;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code closedMeanwhile;  // the folder itself, or a socket of the mock
        const auto target = std::filesystem::read_symlink(entry, closedMeanwhile).string();
        if (target.find("/dev/hidraw") != std::string::npos) nodes.insert(std::stoi(entry.path().filename()));
    }
    return nodes;
}

/// When the node is opened and when it is closed.
class NodeLife : public HidFixture {
protected:
    MockedInterface vendor = vendorInterface();

    DeviceRef listed() {
        kernel.appear(vendor);
        const auto devices = manager->devices();
        return devices.size() == 1 ? devices.front() : nullptr;
    }

    /// The last reference to a device whose node is open.
    DeviceRef usedAndUnplugged() {
        openManager();
        DeviceRef device = plugged(vendor);
        EXPECT_TRUE(set(device, {0x06}));
        unplugged(vendor);
        matched.clear();
        removed.clear();
        return device;
    }

    /// What a user does a thousand times in a keyboard's life.
    void plugUseAndUnplug() {
        const DeviceRef device = plugged(vendor);
        used.push_back(device);
        ASSERT_TRUE(device);
        ASSERT_TRUE(set(device, {0x06, 0x82, 0x01}));
        unplugged(vendor);
        matched.clear();
        removed.clear();
    }
    std::vector<std::weak_ptr<HidDevice>> used;
};

TEST_F(NodeLife, BeginsWithTheFirstReport) {
    const DeviceRef device = listed();
    EXPECT_TRUE(openNodes().empty());
    EXPECT_TRUE(set(device, {0x06}));
    EXPECT_EQ(openNodes().size(), 1U);
}

TEST_F(NodeLife, IsOneForManyReports) {
    const DeviceRef device = listed();
    EXPECT_TRUE(set(device, {0x06}));
    const auto opened = openNodes();
    for (int i = 0; i < 10; ++i) EXPECT_TRUE(set(device, {0x06}));
    EXPECT_EQ(openNodes(), opened);
}

TEST_F(NodeLife, IsNotHandedToAProgramThatIsStarted) {
    const DeviceRef device = listed();
    ASSERT_TRUE(set(device, {0x06}));
    ASSERT_EQ(openNodes().size(), 1U);
    EXPECT_EQ(::fcntl(*openNodes().begin(), F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
}

TEST_F(NodeLife, EndsOnTheIoQueueAndNotWhereTheDeviceIsDropped) {
    DeviceRef device = usedAndUnplugged();
    std::promise<void> release;
    ioThread.post([&release] { release.get_future().wait(); });
    device.reset();
    EXPECT_EQ(openNodes().size(), 1U);
    release.set_value();
    onIo([] { return true; });
    EXPECT_TRUE(openNodes().empty());
}

TEST_F(NodeLife, IsLeftToTheEndOfTheProcessWhenTheIoQueueStops) {
    DeviceRef device = usedAndUnplugged();
    std::promise<void> release;
    std::promise<void> blocked;
    ioThread.post([&] {
        blocked.set_value();
        release.get_future().wait();
    });
    blocked.get_future().wait();
    device.reset();
    ioThread.stop();  // drops the closing here, where it must not happen
    release.set_value();
    ioThread.finish();
    const auto left = openNodes();
    EXPECT_EQ(left.size(), 1U);
    for (const int node : left) ::close(node);
}

TEST_F(NodeLife, IsOverForReportsOnceTheRemovalIsTold) {
    openManager();
    const DeviceRef device = plugged(vendor);
    ASSERT_TRUE(set(device, {0x06, 0x01}));
    kernel.tell(vendor, "remove");  // the node still answers: nobody may ask it
    ASSERT_TRUE(untilRemoved(1));
    std::vector<std::uint8_t> buffer{0x06, 0x00};
    EXPECT_FALSE(set(device, {0x06, 0x02}));
    EXPECT_EQ(get(device, buffer), std::nullopt);
    EXPECT_EQ(kernel.peer.sets().size(), 1U);
    EXPECT_TRUE(kernel.peer.gets().empty());
}

TEST_F(NodeLife, IsOverForReportsAlsoInTheMiddleOfThem) {
    openManager();
    const DeviceRef device = plugged(vendor);
    std::promise<void> begun;
    std::promise<void> over;
    ioThread.post([&] {
        const std::vector<std::uint8_t> report{0x06, 0x01};
        if (device->setFeatureReport(0x06, report)) begun.set_value();
        while (device->setFeatureReport(0x06, report)) continue;
        over.set_value();
    });
    begun.get_future().wait();
    kernel.tell(vendor, "remove");
    ASSERT_TRUE(untilRemoved(1));
    over.get_future().wait();
    onIo([] { return true; });  // the task above still holds the promises until it returns
}

TEST_F(NodeLife, DoesNotBeginAfterTheRemovalIsTold) {
    openManager();
    const DeviceRef device = plugged(vendor);
    kernel.tell(vendor, "remove");
    ASSERT_TRUE(untilRemoved(1));
    EXPECT_FALSE(set(device, {0x06}));
    EXPECT_TRUE(openNodes().empty());
}

TEST_F(NodeLife, DoesNotBeginWithTheNodeOfTheNextDevice) {
    const DeviceRef old = listed();
    kernel.vanish(vendor);
    kernel.appear(vendor);  // the same number; nobody was told yet
    EXPECT_FALSE(set(old, {0x06}));
    EXPECT_TRUE(kernel.peer.sets().empty());
    EXPECT_TRUE(openNodes().empty());
}

TEST_F(NodeLife, KeepsTheValuesOfADeviceThatIsGone) {
    openManager();
    const DeviceRef device = plugged(vendor);
    unplugged(vendor);
    EXPECT_EQ(device->maxFeatureReportSize(), 520);
    EXPECT_EQ(device->product(), "Lumo");
}

TEST_F(NodeLife, LeavesNoDescriptorAndNoThreadBehindAfterAThousandPlugs) {
    openManager();
    plugUseAndUnplug();
    onIo([] { return true; });
    const auto descriptorsBefore = openDescriptors();
    const auto threadsBefore = threads();
    for (int i = 0; i < 1000 && !HasFatalFailure(); ++i) plugUseAndUnplug();
    onIo([] { return true; });
    EXPECT_EQ(kernel.peer.sets().size(), 1001U);
    EXPECT_TRUE(openNodes().empty());
    EXPECT_TRUE(becomes([&] { return openDescriptors() <= descriptorsBefore; }));
    EXPECT_EQ(threads(), threadsBefore);
    EXPECT_TRUE(std::all_of(used.begin(), used.end(), [](const auto& device) { return device.expired(); }));
}

TEST_F(NodeLife, OfManyManagersLeavesNoDescriptorBehind) {
    kernel.appear(vendor);
    const auto useNewManager = [this] {
        manager = makeLinuxHidManager({loop}, {ioThread}, [](std::string_view) {});
        SetUp();
        openManager();
        ASSERT_TRUE(set(matched.back(), {0x06}));
        manager.reset();
        matched.clear();
        onIo([] { return true; });
    };
    useNewManager();  // the mock's own thread opens what it keeps with the first use
    const auto before = openDescriptors();
    for (int i = 0; i < 10 && !HasFatalFailure(); ++i) useNewManager();
    EXPECT_TRUE(openNodes().empty());
    EXPECT_TRUE(becomes([&] { return openDescriptors() <= before; }));
}

}  // namespace
}  // namespace lumo::test
