#include <gmock/gmock.h>

#include "HidTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace lumo::test {
namespace {

using IoKitHidManager = HidTest;

TEST_F(IoKitHidManager, MatchesByVendorAndProductIdAndNothingElse) {
    EXPECT_THAT(ioKit->matching, ElementsAre(ElementsAre(Pair("ProductID", 0x010C), Pair("VendorID", 0x258A)),
                                             ElementsAre(Pair("ProductID", 0xFA09), Pair("VendorID", 0x3554))));
}

TEST_F(IoKitHidManager, RegistersAndSchedulesBeforeItOpens) {
    ASSERT_TRUE(hid->open());
    EXPECT_THAT(ioKit->calls, ElementsAre("Create", "SetDeviceMatchingMultiple", "RegisterDeviceMatchingCallback",
                                          "RegisterDeviceRemovalCallback", "ScheduleWithRunLoop", "Open"));
}

TEST_F(IoKitHidManager, SchedulesInTheDefaultMode) {
    ASSERT_TRUE(hid->open());
    EXPECT_EQ(ioKit->scheduledMode, "kCFRunLoopDefaultMode");
}

TEST_F(IoKitHidManager, NeverSeizesTheKeyboard) {
    ASSERT_TRUE(hid->open());
    EXPECT_THAT(ioKit->options, ElementsAre(0U, 0U));
}

TEST_F(IoKitHidManager, TellsThatOpeningWasDenied) {
    ioKit->openResult = kIOReturnNotPermitted;
    EXPECT_FALSE(hid->open());
}

TEST_F(IoKitHidManager, TakesOnlySuccessForAnOpenManager) {
    ioKit->openResult = 1;
    EXPECT_FALSE(hid->open());
}

TEST_F(IoKitHidManager, AnnouncesArrivalsAlsoAfterADeniedOpen) {
    ioKit->openResult = kIOReturnNotPermitted;
    ASSERT_FALSE(hid->open());
    plugKeyboard();
    turn();
    EXPECT_THAT(told, ElementsAre(Pair("matched", testing::NotNull())));
}

TEST_F(IoKitHidManager, OpeningAgainDoesNotScheduleAgain) {
    ioKit->openResult = kIOReturnNotPermitted;
    ASSERT_FALSE(hid->open());
    ioKit->openResult = 0;
    EXPECT_TRUE(hid->open());
    EXPECT_EQ(ioKit->schedules, 1);
}

TEST_F(IoKitHidManager, IsClosedAndEmptyWhenTheSystemHasNoManagerToGive) {
    hid.reset();
    ioKit->canCreate = false;
    hid = makeMacHidManager(time.mainQueue());
    hid->setDeviceMatching({{0x258A, 0x010C}});
    EXPECT_FALSE(hid->open());
    EXPECT_THAT(hid->devices(), IsEmpty());
}

TEST_F(IoKitHidManager, ListsNothingWhenTheSystemHasNoSet) {
    ASSERT_TRUE(hid->open());
    EXPECT_THAT(hid->devices(), IsEmpty());
}

TEST_F(IoKitHidManager, ListsInterfacesInTheOrderOfTheSet) {
    const auto first = plugKeyboard();
    const auto second = plugKeyboard();
    first->properties["Product"] = text("first");
    second->properties["Product"] = text("second");
    ASSERT_TRUE(hid->open());
    const auto devices = hid->devices();
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_EQ(devices[0]->product(), "first");
    EXPECT_EQ(devices[1]->product(), "second");
}

TEST_F(IoKitHidManager, ListsOneInterfaceAsTheSameObjectEachTime) {
    ioKit->showsTwins = true;
    plugKeyboard();
    ASSERT_TRUE(hid->open());
    const auto before = hid->devices();
    EXPECT_EQ(hid->devices(), before);
}

TEST_F(IoKitHidManager, ListsOnlyMatchingInterfaces) {
    ioKit->plug(0x258A, 0x010D);
    ioKit->plug(0x3554, 0xFA09);
    ASSERT_TRUE(hid->open());
    EXPECT_EQ(hid->devices().size(), 1U);
}

TEST_F(IoKitHidManager, AnnouncesAnInterfaceThatIsPlugged) {
    ASSERT_TRUE(hid->open());
    plugKeyboard();
    turn();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_THAT(hid->devices(), ElementsAre(told[0].second));
}

TEST_F(IoKitHidManager, AnnouncesEachInterfaceOfOneKeyboard) {
    ASSERT_TRUE(hid->open());
    plugKeyboard();
    plugKeyboard();
    turn();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_NE(told[0].second, told[1].second);
}

TEST_F(IoKitHidManager, AnnouncesNoInterfaceThatWasListed) {
    ioKit->showsTwins = true;
    plugKeyboard();
    ASSERT_TRUE(hid->open());
    ASSERT_EQ(hid->devices().size(), 1U);
    turn();
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(IoKitHidManager, AnnouncesNoInterfaceThatWasListedBetweenIoKitsCallAndTheTurn) {
    ASSERT_TRUE(hid->open());
    plugKeyboard();
    ioKit->turn();
    ASSERT_EQ(hid->devices().size(), 1U);
    time.settle();
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(IoKitHidManager, AnnouncesWhatWasPresentWhenNobodyListedIt) {
    plugKeyboard();
    ASSERT_TRUE(hid->open());
    turn();
    EXPECT_THAT(told, ElementsAre(Pair("matched", testing::NotNull())));
}

TEST_F(IoKitHidManager, TellsNothingFromInsideACall) {
    plugKeyboard();
    ASSERT_TRUE(hid->open());
    ioKit->turn();
    EXPECT_THAT(told, IsEmpty());
    time.settle();
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(IoKitHidManager, TellsTheRemovalOfTheVeryObjectThatItAnnounced) {
    ioKit->showsTwins = true;
    ASSERT_TRUE(hid->open());
    const auto keyboard = plugKeyboard();
    turn();
    ASSERT_EQ(told.size(), 1U);
    ioKit->unplug(keyboard);
    turn();
    EXPECT_THAT(told, ElementsAre(Pair("matched", told[0].second), Pair("removed", told[0].second)));
}

TEST_F(IoKitHidManager, TellsTheRemovalOfTheVeryObjectThatItListed) {
    const auto keyboard = plugKeyboard();
    const auto device = openedDevice();
    turn();
    ioKit->unplug(keyboard);
    turn();
    EXPECT_THAT(told, ElementsAre(Pair("removed", device)));
}

TEST_F(IoKitHidManager, TellsArrivalBeforeRemovalWhenBothComeInOneTurn) {
    ASSERT_TRUE(hid->open());
    ioKit->unplug(plugKeyboard());
    turn();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_THAT(told, ElementsAre(Pair("matched", told[1].second), Pair("removed", told[0].second)));
}

TEST_F(IoKitHidManager, TellsNothingOfARemovalTwice) {
    ASSERT_TRUE(hid->open());
    const auto keyboard = plugKeyboard();
    turn();
    ioKit->unplug(keyboard);
    ioKit->unplug(keyboard);
    turn();
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(IoKitHidManager, KeepsTheOtherInterfaceWhenOneGoes) {
    ASSERT_TRUE(hid->open());
    const auto first = plugKeyboard();
    plugKeyboard();
    turn();
    ASSERT_EQ(told.size(), 2U);
    ioKit->unplug(first);
    turn();
    EXPECT_EQ(told.back(), Told("removed", told[0].second));
    EXPECT_THAT(hid->devices(), ElementsAre(told[1].second));
}

TEST_F(IoKitHidManager, GivesAReturningKeyboardANewObject) {
    ASSERT_TRUE(hid->open());
    ioKit->unplug(plugKeyboard());
    plugKeyboard();
    turn();
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[2].first, "matched");
    EXPECT_NE(told[2].second, told[0].second);
}

TEST_F(IoKitHidManager, HoldsNoReferenceToAnInterfaceThatLeft) {
    ASSERT_TRUE(hid->open());
    const auto keyboard = plugKeyboard();
    turn();
    const std::weak_ptr<HidDevice> device = told.at(0).second;
    ioKit->unplug(keyboard);
    turn();
    told.clear();
    EXPECT_TRUE(device.expired());
}

TEST_F(IoKitHidManager, TellsNobodyAnyMoreOnceItIsDestroyed) {
    ASSERT_TRUE(hid->open());
    plugKeyboard();
    ioKit->turn();
    hid.reset();
    time.settle();
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(IoKitHidManager, StopsTheProcessOnAnArrivalWithoutContext) {
    ASSERT_TRUE(hid->open());
    EXPECT_DEATH(ioKit->callBackWithoutContext(true, plugKeyboard()),
                 "vexa-lumo-65: the HID manager called back without a context");
}

TEST_F(IoKitHidManager, StopsTheProcessOnARemovalWithoutContext) {
    ASSERT_TRUE(hid->open());
    EXPECT_DEATH(ioKit->callBackWithoutContext(false, plugKeyboard()),
                 "vexa-lumo-65: the HID manager called back without a context");
}

}  // namespace
}  // namespace lumo::test
