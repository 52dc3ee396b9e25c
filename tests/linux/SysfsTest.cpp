#include "platform/linux/Sysfs.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

TEST(Uevent, ValueIsTheRestOfTheLineAfterTheKey) {
    EXPECT_EQ(ueventValue("DRIVER=hid-generic\nHID_ID=0003:0000258A:0000010C\nHID_NAME=A=B\n", "HID_NAME"), "A=B");
}

TEST(Uevent, ValueMayBeEmpty) { EXPECT_EQ(ueventValue("HID_NAME=\nHID_PHYS=x\n", "HID_NAME"), ""); }

TEST(Uevent, LastLineNeedsNoLineEnd) { EXPECT_EQ(ueventValue("A=1\nB=2", "B"), "2"); }

TEST(Uevent, KeyIsTheWholeWord) {
    EXPECT_EQ(ueventValue("HID_NAMED=x\nXHID_NAME=y\nHID_NAME", "HID_NAME"), std::nullopt);
}

TEST(Uevent, FirstLineWinsSoThatANameCannotForgeTheIds) {
    EXPECT_EQ(ueventValue("HID_ID=0003:1\nHID_NAME=x\nHID_ID=0003:2\n", "HID_ID"), "0003:1");
}

TEST(SysfsFile, IsAbsentWhenItDoesNotExist) { EXPECT_EQ(readSysfsFile("/proc/self/no-such-file", 16), std::nullopt); }

TEST(SysfsFile, IsAbsentWhenItIsAFolder) { EXPECT_EQ(readSysfsFile("/proc/self", 16), std::nullopt); }

TEST(SysfsFile, IsCutAtTheLimit) { EXPECT_EQ(readSysfsFile("/proc/version", 5), "Linux"); }

TEST(SysfsIdentityOfAPath, IsAbsentWhenNothingIsThere) {
    EXPECT_EQ(sysfsIdentity("/proc/self/no-such-file"), std::nullopt);
}

}  // namespace
}  // namespace lumo
