#include "app/SharedObjects.h"

#include <gtest/gtest.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

class Shared : public test::LinkFixture {};

TEST_F(Shared, EachAccessorAlwaysGivesTheSameObject) {
    EXPECT_EQ(&VexaProtocol::shared(), &VexaProtocol::shared());
    EXPECT_EQ(&UIState::shared(), &UIState::shared());
    EXPECT_EQ(&KeyboardModel::shared(), &KeyboardModel::shared());
    EXPECT_EQ(&VexaProtocol::shared(), &objects.vexaProtocol());
}

TEST_F(Shared, TheLinkIsMadeOnFirstUseAndNotBefore) {
    EXPECT_TRUE(platform.ioQueueLabel.empty());
    (void)UIState::shared();
    EXPECT_TRUE(platform.ioQueueLabel.empty());
    (void)VexaProtocol::shared();
    EXPECT_EQ(platform.ioQueueLabel, "com.vexalumo.lumo65.ioqueue");
}

TEST_F(Shared, TheLinkReachesTheKeyboardModelThoughItIsMadeFirst) {
    VexaProtocol::shared().setLightingMode(21);
    time.settle();
    EXPECT_EQ(VexaProtocol::shared().statusMessage.get(), "Previewed Custom Per-Key RGB Matrix (67 keys)");
}

TEST(SharedDeathTest, AskingBeforeTheEntryPointMadeThemStopsTheProcess) {
    EXPECT_DEATH((void)UIState::shared(), "before the entry point made them");
}

}  // namespace
}  // namespace lumo
