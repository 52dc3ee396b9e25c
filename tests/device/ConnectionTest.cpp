// Finding the keyboard and losing it, and what is published on the way.
#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using vk::InterfaceFacts;

class Connection : public test::LinkFixture {
protected:
    static InterfaceFacts interfaceOf(std::optional<std::int64_t> size, std::optional<std::string> product) {
        return {{0x258A, 0x010C}, size, std::move(product)};
    }
    void expectSimulated(const std::string& status) {
        EXPECT_FALSE(link().isConnected.get());
        EXPECT_FALSE(link().isAuthenticated.get());
        EXPECT_EQ(link().connectionType.get(), "Simulated / Disconnected");
        EXPECT_EQ(link().statusMessage.get(), status);
    }
};

TEST_F(Connection, StartsWithTheInitialValues) {
    link();
    time.settle();
    expectSimulated("Ready");
    EXPECT_EQ(link().activeModeId.get(), 4);
    EXPECT_EQ(link().speed.get(), 2);
    EXPECT_EQ(link().brightness.get(), 4);
    EXPECT_EQ(link().primaryColor.get(), (ColorBytes{87, 8, 212}));
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(Connection, LooksForTheKeyboardOnItsCableAndForItsReceiver) {
    link();
    EXPECT_THAT(hid.matches(), ElementsAre(HidMatch{0x258A, 0x010C}, HidMatch{0x3554, 0xFA09}));
}

TEST_F(Connection, TheIoQueueCarriesTheProgramsLabel) {
    link();
    EXPECT_EQ(platform.ioQueueLabel, "com.vexalumo.lumo65.ioqueue");
}

TEST_F(Connection, AKeyboardPresentAtStartIsAdoptedAndAuthenticated) {
    hid.plugKeyboard();
    link();
    EXPECT_FALSE(link().isConnected.get());  // published later, through the main queue
    time.settle();
    EXPECT_TRUE(link().isConnected.get());
    EXPECT_TRUE(link().isAuthenticated.get());
    EXPECT_EQ(link().connectionType.get(), "Vexa Lumo 65 (Connected)");
    EXPECT_EQ(link().statusMessage.get(), "Connected & Authenticated");
    EXPECT_THAT(platform.console, ElementsAre("[VexaProtocol] Handshake verified with hardware!"));
}

TEST_F(Connection, AKeyboardPluggedInLaterIsAdopted) {
    link();
    time.settle();
    hid.plugKeyboard();
    time.settle();
    EXPECT_TRUE(link().isAuthenticated.get());
}

TEST_F(Connection, TheReceiverCountsAsTheKeyboard) {
    link();
    hid.plug({{0x3554, 0xFA09}, 520, "2.4G Receiver"});
    time.settle();
    EXPECT_EQ(link().connectionType.get(), "2.4G Receiver (Connected)");
}

TEST_F(Connection, StatusGoesFromDetectedToAuthenticated) {
    recordStatuses();
    hid.plugKeyboard();
    time.settle();
    EXPECT_THAT(statuses(),
                ElementsAre("Device detected. Performing authentication handshake...", "Connected & Authenticated"));
}

TEST_F(Connection, AnInterfaceOf519BytesIsNeverAdopted) {
    link();
    hid.plug(interfaceOf(519, "Vexa Lumo 65"));
    time.settle();
    expectSimulated("Ready");
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(Connection, AnInterfaceOf520BytesOrMoreIsAdopted) {
    link();
    hid.plug(interfaceOf(520, "Exactly"));
    time.settle();
    EXPECT_EQ(link().connectionType.get(), "Exactly (Connected)");
    hid.plug(interfaceOf(4096, "More"));
    time.settle();
    EXPECT_EQ(link().connectionType.get(), "More (Connected)");
}

TEST_F(Connection, AnInterfaceThatDoesNotTellItsSizeIsIgnored) {
    link();
    hid.plug(vk::typingInterface());
    time.settle();
    expectSimulated("Ready");
}

TEST_F(Connection, TwoQualifyingInterfacesAtStartAreAdoptedInTurnAndTheLastIsHeld) {
    const auto first = hid.plug(interfaceOf(520, "First"));
    const auto last = hid.plug(interfaceOf(520, "Last"));
    link();
    time.settle();
    EXPECT_EQ(firmware.writes().size(), 2U);
    EXPECT_EQ(link().connectionType.get(), "Last (Connected)");
    hid.unplug(first);
    time.settle();
    EXPECT_TRUE(link().isConnected.get());
    hid.unplug(last);
    time.settle();
    EXPECT_FALSE(link().isConnected.get());
}

TEST_F(Connection, RemovingTheHeldInterfaceMeansSimulatedEvenIfAnotherWouldQualify) {
    hid.plug(interfaceOf(520, "First"));
    const auto last = hid.plug(interfaceOf(520, "Last"));
    link();
    time.settle();
    hid.unplug(last);
    time.settle();
    expectSimulated("Keyboard disconnected. Running in preview mode.");
}

TEST_F(Connection, TheMostRecentQualifyingInterfaceWins) {
    link();
    hid.plug(interfaceOf(520, "Cable"));
    time.settle();
    hid.plug({{0x3554, 0xFA09}, 520, "Receiver"});
    time.settle();
    EXPECT_EQ(link().connectionType.get(), "Receiver (Connected)");
    EXPECT_EQ(firmware.writes().size(), 2U);
}

TEST_F(Connection, AMissingProductNameIsReplaced) {
    link();
    hid.plug(interfaceOf(520, std::nullopt));
    time.settle();
    EXPECT_EQ(link().connectionType.get(), "Vexa Lumo 65 (Connected)");
}

TEST_F(Connection, AnEmptyProductNameIsKept) {
    link();
    hid.plug(interfaceOf(520, ""));
    time.settle();
    EXPECT_EQ(link().connectionType.get(), " (Connected)");
}

TEST_F(Connection, AProductNameIsKeptAsRead) {
    link();
    hid.plug(interfaceOf(520, "<b>Lumo</b>\x1b[31m"));
    time.settle();
    EXPECT_EQ(link().connectionType.get(), "<b>Lumo</b>\x1b[31m (Connected)");
}

TEST_F(Connection, RemovingTheKeyboardEndsInPreviewMode) {
    connect();
    hid.unplugAll();
    time.settle();
    expectSimulated("Keyboard disconnected. Running in preview mode.");
}

TEST_F(Connection, RemovingAnotherInterfaceChangesNothing) {
    link();
    const auto typing = hid.plug(vk::typingInterface());
    hid.plug(vk::configurationInterface());
    time.settle();
    recordStatuses();
    hid.unplug(typing);
    time.settle();
    EXPECT_TRUE(link().isConnected.get());
    EXPECT_THAT(statuses(), IsEmpty());
}

TEST_F(Connection, WithNoDeviceHeldARemovalChangesNothing) {
    link();
    const auto typing = hid.plug(vk::typingInterface());
    time.settle();
    hid.unplug(typing);
    time.settle();
    expectSimulated("Ready");
}

TEST_F(Connection, AManagerThatCannotBeOpenedListsNothingAndSaysNothing) {
    hid.refuseToOpen();
    hid.plugKeyboard();
    link();
    time.settle();
    expectSimulated("Ready");
    EXPECT_THAT(platform.console, IsEmpty());
}

TEST_F(Connection, AManagerThatCannotBeOpenedStillHearsOfLaterArrivals) {
    hid.refuseToOpen();
    link();
    hid.plugKeyboard();
    time.settle();
    EXPECT_TRUE(link().isAuthenticated.get());
}

}  // namespace
}  // namespace lumo
