// What binding, saving and resetting do to keys, keyboard and status.
#include "remap/RemapActions.h"

#include <gmock/gmock.h>

#include <set>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Bytes = std::vector<std::uint8_t>;

class Remap : public test::LinkFixture {
protected:
    RemapActions actions{link(), state(), keyboard()};

    const KeyCap& key(const std::string& label) {
        return *std::ranges::find(keyboard().keys.get(), label, &KeyCap::label);
    }
    void select(const std::string& label) { keyboard().selectKey(key(label).id, false); }
    void bind(const std::string& label, const std::string& name, const KeyCode& code) {
        select(label);
        actions.assignAction(name, code, 0);
        time.settle();
    }
    /// Of that place, in the keyboard itself.
    Bytes codeInKeyboard(std::int64_t matrixPos) {
        const auto first = firmware.keyTable().begin() + 8 + 4 * matrixPos;
        return {first, first + 4};
    }
    const std::string& status() { return link().statusMessage.get(); }

    /// Of the writes of all keys. A write that one fault refuses is not counted by those after it.
    void refuseEverySecondWrite(unsigned first) {
        for (unsigned nth = first; 2 * nth - first < keyboard().keys.get().size(); ++nth) {
            fault("set 03 refuse skip " + std::to_string(nth) + " once");
        }
    }
    std::vector<std::string> textsOfAResetRefusedFrom(std::size_t first) {
        std::vector<std::string> texts{"All 67 switches restored to factory default mappings."};
        for (std::size_t i = 0; i < keyboard().keys.get().size(); ++i) {
            const std::string place = std::to_string(keyboard().keys.get().at(i).matrixPos);
            texts.push_back(i % 2 == first ? "Key remap write failed" : "Key position " + place + " programmed");
        }
        return texts;
    }
    /// What a read without a keyboard gives back is, behind the header, what the keyboard holds.
    void expectCodesAreKnown() {
        hid.unplugAll();
        time.settle();
        Bytes table;
        link().readKeyRemapTable([&](const auto& known) { table = known.value_or(Bytes{}); });
        time.settle();
        ASSERT_EQ(table.size(), firmware.keyTable().size());
        EXPECT_EQ(Bytes(table.begin() + 8, table.end()),
                  Bytes(firmware.keyTable().begin() + 8, firmware.keyTable().end()));
    }
};

TEST_F(Remap, ChoosingACategoryIsKeptInTheState) {
    EXPECT_EQ(state().remapCategory.get(), "Multimedia");
    actions.chooseCategory("Letters");
    EXPECT_EQ(state().remapCategory.get(), "Letters");
    EXPECT_EQ(status(), "Ready");
}

TEST_F(Remap, BindingIsKeptInTheKeyAndWrittenToItsPlace) {
    connect();
    select("CapsLock");
    actions.assignAction("Mute", {0x02, 0x00, 0x00, 0xE2}, 0x020000E2);
    EXPECT_EQ(key("CapsLock").remapBytes, Bytes({0x02, 0x00, 0x00, 0xE2}));
    EXPECT_EQ(key("CapsLock").remapLabel, "Mute");
    EXPECT_EQ(key("CapsLock").remapCode, std::nullopt);
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x83, 0x03));
    EXPECT_EQ(codeInKeyboard(3), Bytes({0x02, 0x00, 0x00, 0xE2}));
}

TEST_F(Remap, ThePagesTextComesAtOnceAndTheLinksAfterTheExchange) {
    connect();
    select("CapsLock");
    recordStatuses();
    actions.assignAction("Mute", {0x02, 0x00, 0x00, 0xE2}, 0x020000E2);
    EXPECT_EQ(status(), "Assigned switch 'CapsLock' -> Mute");
    time.settle();
    EXPECT_THAT(statuses(), ElementsAre("Assigned switch 'CapsLock' -> Mute", "Key position 3 programmed"));
}

TEST_F(Remap, WithoutASelectionItOnlyAsksForOne) {
    connect();
    actions.assignAction("Mute", {0x02, 0x00, 0x00, 0xE2}, 0x020000E2);
    time.settle();
    EXPECT_EQ(status(), "Please select a switch on the keyboard first.");
    EXPECT_THAT(commandsSent(), IsEmpty());
    for (const KeyCap& each : keyboard().keys.get()) EXPECT_EQ(each.remapBytes, std::nullopt);
}

TEST_F(Remap, ASelectionThatNoKeyHasEndsSilently) {
    connect();
    keyboard().selectedKeyIds.set({"K99"});
    actions.assignAction("Mute", {0x02, 0x00, 0x00, 0xE2}, 0x020000E2);
    time.settle();
    EXPECT_EQ(status(), "Connected & Authenticated");
    EXPECT_THAT(commandsSent(), IsEmpty());
}

TEST_F(Remap, OfSeveralSelectedKeysOnlyTheFirstInTheLayoutIsBound) {
    connect();
    keyboard().selectedKeyIds.set({"K10", "K2", "K3"});  // by their ids as text, "K10" would come first
    ASSERT_NE(keyboard().firstSelectedKey(), nullptr);
    EXPECT_EQ(keyboard().firstSelectedKey()->id, "K2");
    actions.assignAction("F5", {0x00, 0x00, 0x00, 0x3E}, 0x3E);
    time.settle();
    EXPECT_EQ(status(), "Key position 7 programmed");
    EXPECT_EQ(key("1").remapLabel, "F5");
    EXPECT_EQ(
        std::ranges::count_if(keyboard().keys.get(), [](const KeyCap& each) { return each.remapLabel.has_value(); }),
        1);
    EXPECT_THAT(commandsSent(), ElementsAre(0x83, 0x03));
}

TEST_F(Remap, BindingKeepsTheSelectionAndTheColors) {
    keyboard().selectPresetGroup("WASD");
    keyboard().showColorOnAll(Color{0.0, 1.0, 0.0});
    actions.assignAction("Mute", {0x02, 0x00, 0x00, 0xE2}, 0x020000E2);
    EXPECT_EQ(keyboard().selectedKeyIds.get().size(), 4U);
    EXPECT_EQ(key("W").customColor, (Color{0.0, 1.0, 0.0}));
}

TEST_F(Remap, DisableKeyStoresZerosAndItsName) {
    connect();
    bind("Q", "Disable Key", {0x00, 0x00, 0x00, 0x00});
    EXPECT_EQ(key("Q").remapBytes, Bytes({0x00, 0x00, 0x00, 0x00}));
    EXPECT_EQ(key("Q").remapLabel, "Disable Key");
    EXPECT_EQ(codeInKeyboard(8), Bytes({0x00, 0x00, 0x00, 0x00}));
}

TEST_F(Remap, WithoutAKeyboardAKeyIsBoundAllTheSame) {
    bind("A", "F5", {0x00, 0x00, 0x00, 0x3E});
    EXPECT_EQ(status(), "Assigned switch 'A' -> F5");
    EXPECT_EQ(key("A").remapLabel, "F5");
}

TEST_F(Remap, ANegativePlaceIsIgnoredSilently) {
    connect();
    auto keys = keyboard().keys.get();
    keys.front().matrixPos = -1;
    keyboard().keys.set(keys);
    bind("Esc", "Mute", {0x02, 0x00, 0x00, 0xE2});
    EXPECT_EQ(status(), "Assigned switch 'Esc' -> Mute");
    EXPECT_TRUE(firmware.lastWrite(0x03).empty());
}

TEST_F(Remap, SavingSendsEveryBoundKeyInTheOrderOfTheLayout) {
    connect();
    bind("A", "F5", {0x00, 0x00, 0x00, 0x3E});
    bind("Esc", "Mute", {0x02, 0x00, 0x00, 0xE2});
    firmware.forgetWrites();
    recordStatuses();
    actions.saveKeyMatrix();
    EXPECT_EQ(status(), "2 key assignments saved to keyboard memory.");
    time.settle();
    EXPECT_THAT(statuses(), ElementsAre("2 key assignments saved to keyboard memory.", "Key position 1 programmed",
                                        "Key position 9 programmed"));
    EXPECT_THAT(commandsSent(), ElementsAre(0x03, 0x03));
}

TEST_F(Remap, SavingCountsACodeThatTheLinkDoesNotSend) {
    connect();
    auto keys = keyboard().keys.get();
    keys.front().remapBytes = Bytes{1, 2, 3};
    keyboard().keys.set(keys);
    actions.saveKeyMatrix();
    time.settle();
    EXPECT_EQ(status(), "1 key assignments saved to keyboard memory.");
    EXPECT_THAT(commandsSent(), IsEmpty());
}

TEST_F(Remap, SavingAfterAResetSendsNothingAndCountsNone) {
    connect();
    bind("A", "F5", {0x00, 0x00, 0x00, 0x3E});
    actions.resetToDefaults();
    time.settle();
    firmware.forgetWrites();
    actions.saveKeyMatrix();
    time.settle();
    EXPECT_THAT(commandsSent(), IsEmpty());
    EXPECT_EQ(status(), "0 key assignments saved to keyboard memory.");
}

TEST_F(Remap, ResettingUnbindsEveryKey) {
    bind("A", "F5", {0x00, 0x00, 0x00, 0x3E});
    auto keys = keyboard().keys.get();
    keys.back().remapCode = 0x12;
    keyboard().keys.set(keys);
    actions.resetToDefaults();
    EXPECT_EQ(status(), "All 67 switches restored to factory default mappings.");
    for (const KeyCap& each : keyboard().keys.get()) {
        EXPECT_EQ(each.remapBytes, std::nullopt);
        EXPECT_EQ(each.remapLabel, std::nullopt);
        EXPECT_EQ(each.remapCode, std::nullopt);
    }
}

TEST_F(Remap, ResettingWritesTheFactoryCodeOfEveryKeyInItsOrder) {
    connect();
    actions.resetToDefaults();
    time.settle();
    EXPECT_EQ(commandsSent().size(), 68U);  // one read before
    EXPECT_EQ(codeInKeyboard(1), Bytes({0x00, 0x00, 0x00, 0x1B}));
    EXPECT_EQ(codeInKeyboard(9), Bytes({0x00, 0x00, 0x00, 0x41}));
    EXPECT_EQ(codeInKeyboard(4), Bytes({0x00, 0x02, 0x00, 0x00}));
    EXPECT_EQ(codeInKeyboard(11), Bytes({0x00, 0x08, 0x00, 0x00}));
    EXPECT_EQ(codeInKeyboard(59), Bytes({0x0D, 0x00, 0x00, 0x00}));
    EXPECT_EQ(codeInKeyboard(65), Bytes({0x00, 0x10, 0x00, 0x00}));
    EXPECT_EQ(status(), "Key position 65 programmed");  // of the last key
}

TEST_F(Remap, ResettingLeavesThePlacesThatNoKeyOwns) {
    connect();
    const auto before = firmware.keyTable();
    actions.resetToDefaults();
    time.settle();
    std::set<std::int64_t> owned;
    for (const KeyCap& each : keyboard().keys.get()) owned.insert(each.matrixPos);
    EXPECT_EQ(owned.size(), 67U);
    for (std::int64_t place = 0; place < 128; ++place) {
        if (owned.contains(place)) continue;
        const auto first = before.begin() + 8 + 4 * place;
        EXPECT_EQ(codeInKeyboard(place), Bytes(first, first + 4)) << place;
    }
}

TEST_F(Remap, TheTextOfTheResetCountsSixtySevenWhateverTheKeys) {
    keyboard().keys.set({keyboard().keys.get().front()});
    actions.resetToDefaults();
    EXPECT_EQ(status(), "All 67 switches restored to factory default mappings.");
}

TEST_F(Remap, AKeyboardThatRefusesEverySecondWriteIsKnownAsItIs) {
    connect();
    refuseEverySecondWrite(1);
    recordStatuses();
    actions.resetToDefaults();
    time.settle();
    EXPECT_EQ(statuses(), textsOfAResetRefusedFrom(1));
    EXPECT_EQ(codeInKeyboard(1), Bytes({0x00, 0x00, 0x00, 0x1B}));
    EXPECT_NE(codeInKeyboard(7), Bytes({0x00, 0x00, 0x00, 0x31}));
    EXPECT_EQ(codeInKeyboard(13), Bytes({0x00, 0x00, 0x00, 0x32}));
    expectCodesAreKnown();
}

TEST_F(Remap, AKeyboardThatRefusesTheFirstWriteAndEverySecondAfterItIsKnownAsItIs) {
    connect();
    refuseEverySecondWrite(0);
    recordStatuses();
    actions.resetToDefaults();
    time.settle();
    EXPECT_EQ(statuses(), textsOfAResetRefusedFrom(0));
    EXPECT_EQ(status(), "Key remap write failed");
    EXPECT_NE(codeInKeyboard(65), Bytes({0x00, 0x10, 0x00, 0x00}));
    expectCodesAreKnown();
}

}  // namespace
}  // namespace lumo
