// The message in the status bar.
#include <gmock/gmock.h>

#include "app/StatusBar.h"
#include "app/StatusChip.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"

namespace lumo {
namespace {

class Status : public test::WindowFixture {};

TEST_F(Status, BeginsWithTheLinksFirstMessage) {
    show();
    EXPECT_EQ(statusLine().text(), "Ready");
}

TEST_F(Status, AViewThatIsMadeLaterShowsTheMessageOfThatTime) {
    connect();
    show();
    EXPECT_EQ(statusLine().text(), "Connected & Authenticated");
}

TEST_F(Status, FollowsInTheNextTurnAndNotBefore) {
    show();
    link().statusMessage.set("Applied: Raindrops");
    EXPECT_EQ(statusLine().text(), "Ready");
    time.settle();
    EXPECT_EQ(statusLine().text(), "Applied: Raindrops");
}

TEST_F(Status, AMessageThatIsTooLongIsElided) {
    show();
    link().statusMessage.set(std::string(900, 'm'));
    time.settle();
    EXPECT_TRUE(statusLine().isElided());
    EXPECT_EQ(rectOf(statusLine()).left(), 16);
    const StatusChip& chip = *only<StatusBar>().findChildren<StatusChip*>().front();
    EXPECT_EQ(rectOf(statusLine()).right() + 1, rectOf(chip).left() - 14);
}

TEST_F(Status, AnAmpersandIsALetter) {
    connect();
    show();
    EXPECT_EQ(statusLine().accessibleName(), "Connected & Authenticated");
}

}  // namespace
}  // namespace lumo
