#include "platform/macos/EventAccess.h"

#include <gmock/gmock.h>

#include "FakeCoreFoundation.h"
#include "FakeEventAccess.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace lumo::test {
namespace {

class EventAccess : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(fakemac::liveObjects(), 0); }

    fakemac::FakeEventAccess system;
};

TEST_F(EventAccess, TellsThatTheKeysMayBeListenedTo) {
    EXPECT_FALSE(event_access::preflight());
    system.mayListen = true;
    EXPECT_TRUE(event_access::preflight());
}

TEST_F(EventAccess, LooksForTheKeysWithoutAskingTheUser) {
    static_cast<void>(event_access::preflight());
    EXPECT_THAT(system.calls, ElementsAre("CGPreflightListenEventAccess"));
}

TEST_F(EventAccess, AsksTheUserForTheKeys) {
    event_access::request();
    EXPECT_THAT(system.calls, ElementsAre("CGRequestListenEventAccess"));
}

TEST_F(EventAccess, TellsThatTheProcessIsTrusted) {
    EXPECT_FALSE(event_access::isTrusted());
    system.isTrusted = true;
    EXPECT_TRUE(event_access::isTrusted());
}

TEST_F(EventAccess, LooksForTrustWithoutAskingTheUser) {
    static_cast<void>(event_access::isTrusted());
    EXPECT_THAT(system.calls, ElementsAre("AXIsProcessTrusted"));
    EXPECT_THAT(system.options, IsEmpty());
}

TEST_F(EventAccess, AsksTheUserForTrustByTheOneOption) {
    static_cast<void>(event_access::isTrustedWithPrompt());
    EXPECT_THAT(system.calls, ElementsAre("AXIsProcessTrustedWithOptions"));
    EXPECT_THAT(system.options, ElementsAre(ElementsAre(Pair("AXTrustedCheckOptionPrompt", true))));
}

TEST_F(EventAccess, TellsWhatTheSystemAnswersBesideItsQuestion) {
    EXPECT_FALSE(event_access::isTrustedWithPrompt());
    system.isTrusted = true;
    EXPECT_TRUE(event_access::isTrustedWithPrompt());
}

}  // namespace
}  // namespace lumo::test
