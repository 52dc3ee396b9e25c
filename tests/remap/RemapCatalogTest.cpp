// The actions that are offered, byte by byte.
#include "remap/RemapCatalog.h"

#include <gmock/gmock.h>

#include <set>

namespace lumo {
namespace {

using testing::ElementsAre;

struct Row {
    const char* name;
    const char* iconFile;
    std::array<std::uint8_t, 4> code;
    std::uint32_t dword;
};

void expectRows(const std::vector<RemapItem>& items, const std::vector<Row>& rows) {
    ASSERT_EQ(items.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(items[i].name, rows[i].name);
        EXPECT_EQ(items[i].iconFile, rows[i].iconFile) << rows[i].name;
        EXPECT_EQ(items[i].codeBytes, rows[i].code) << rows[i].name;
        EXPECT_EQ(items[i].dword, rows[i].dword) << rows[i].name;
    }
}

const RemapItem& named(const std::vector<RemapItem>& items, const std::string& name) {
    return *std::ranges::find(items, name, &RemapItem::name);
}

TEST(RemapCatalog, TheMediaActionsAreConsumerUsages) {
    expectRows(remapItems(kMediaActions), {{"Play / Pause", "media_play.png", {0x02, 0x00, 0x00, 0xCD}, 0x020000CD},
                                           {"Mute", "media_mute.png", {0x02, 0x00, 0x00, 0xE2}, 0x020000E2},
                                           {"Volume +", "media_volinc.png", {0x02, 0x00, 0x00, 0xE9}, 0x020000E9},
                                           {"Volume -", "media_voldec.png", {0x02, 0x00, 0x00, 0xEA}, 0x020000EA},
                                           {"Next Track", "media_next.png", {0x02, 0x00, 0x00, 0xB5}, 0x020000B5},
                                           {"Prev Track", "media_prev.png", {0x02, 0x00, 0x00, 0xB6}, 0x020000B6},
                                           {"Stop", "media_stop.png", {0x02, 0x00, 0x00, 0xB7}, 0x020000B7},
                                           {"Calculator", "media_cal.png", {0x02, 0x00, 0x01, 0x92}, 0x02000192},
                                           {"My Computer", "media_computer.png", {0x02, 0x00, 0x01, 0x94}, 0x02000194},
                                           {"Web Browser", "media_home.png", {0x02, 0x00, 0x02, 0x23}, 0x02000223}});
}

TEST(RemapCatalog, TheShortcutsHaveTheirModifiersInByte1AndTheirKeyInByte2) {
    expectRows(remapItems(kSystemActions),
               {{"Ctrl + C (Copy)", "adv_save.png", {0x00, 0x01, 0x06, 0x00}, 0x00010600},
                {"Ctrl + V (Paste)", "adv_task.png", {0x00, 0x01, 0x19, 0x00}, 0x00011900},
                {"Ctrl + X (Cut)", "adv_closewindow.png", {0x00, 0x01, 0x1B, 0x00}, 0x00011B00},
                {"Ctrl + Z (Undo)", "adv_undo.png", {0x00, 0x01, 0x1D, 0x00}, 0x00011D00},
                {"Ctrl + S (Save)", "adv_save.png", {0x00, 0x01, 0x16, 0x00}, 0x00011600},
                {"Ctrl + A (Select All)", "adv_desktop.png", {0x00, 0x01, 0x04, 0x00}, 0x00010400},
                {"Show Desktop (Win+D)", "adv_desktop.png", {0x00, 0x08, 0x07, 0x00}, 0x00080700},
                {"Disable Key", "adv_disable.png", {0x00, 0x00, 0x00, 0x00}, 0x00000000}});
}

TEST(RemapCatalog, TheMouseActionsListForwardBeforeBackward) {
    expectRows(remapItems(kMouseActions), {{"Left Click", "ms_left.png", {0x01, 0x01, 0x01, 0x00}, 0x01010100},
                                           {"Right Click", "ms_right.png", {0x01, 0x02, 0x01, 0x00}, 0x01020100},
                                           {"Middle Click", "ms_mid.png", {0x01, 0x03, 0x01, 0x00}, 0x01030100},
                                           {"Forward", "ms_forward.png", {0x01, 0x05, 0x01, 0x00}, 0x01050100},
                                           {"Backward", "ms_backward.png", {0x01, 0x04, 0x01, 0x00}, 0x01040100}});
}

TEST(RemapCatalog, DisableKeyIsAllZeros) {
    const auto items = remapItems(kSystemActions);
    EXPECT_THAT(named(items, "Disable Key").codeBytes, ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(named(items, "Disable Key").dword, 0U);
}

TEST(RemapCatalog, TheHighByteOfCalculatorsUsageIsInByte2) {
    const auto items = remapItems(kMediaActions);
    EXPECT_EQ(named(items, "Calculator").dword, 0x02000192U);
    EXPECT_EQ(named(items, "Calculator").codeBytes[2], 0x01);
}

TEST(RemapCatalog, EveryItemOfEveryListHasAnIdOfItsOwn) {
    std::set<Uuid> ids;
    std::size_t count = 0;
    for (int build = 0; build < 2; ++build) {
        for (const auto& items : {remapItems(kMediaActions), remapItems(kSystemActions), remapItems(kMouseActions)}) {
            for (const RemapItem& item : items) ids.insert(item.id);
            count += items.size();
        }
    }
    EXPECT_EQ(count, 46U);
    EXPECT_EQ(ids.size(), 46U);
}

}  // namespace
}  // namespace lumo
