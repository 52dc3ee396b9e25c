#include "system/PermissionFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class LaterLaunch : public test::PermissionFixture {
protected:
    LaterLaunch() { launchedBefore(); }
};

TEST_F(LaterLaunch, WithBothGrantsPopupAndToastAreRaisedAtConstructionAndLoweredByTheFirstCheck) {
    grantBoth();
    EXPECT_THAT(prompts(), ElementsAre(false, true, true));
    turn();
    EXPECT_THAT(prompts(), ElementsAre(false, false, false));
    EXPECT_THAT(journal, IsEmpty());  // the flag is there already
}

TEST_F(LaterLaunch, WithAGrantMissingBothStayUntilTheUserDismissesThem) {
    grants.audio = AudioAuthorization::authorized;
    EXPECT_THAT(prompts(), ElementsAre(false, true, true));
    time.advance(60s);
    EXPECT_THAT(prompts(), ElementsAre(false, true, true));
    manager().dismissRecheckPopup();
    EXPECT_THAT(prompts(), ElementsAre(false, false, true));
    manager().dismissToast();
    EXPECT_THAT(prompts(), ElementsAre(false, false, false));
    time.advance(60s);
    EXPECT_THAT(prompts(), ElementsAre(false, false, false));
}

TEST_F(LaterLaunch, AGrantMadeInTheSettingsLowersBothWithinASecondOfComingBack) {
    EXPECT_THAT(prompts(), ElementsAre(false, true, true));
    time.advance(500ms);
    platform.surroundings.becomeActive();
    time.at(900ms, [this] { grantBoth(); });  // the system takes its time to tell
    time.advance(999ms);
    EXPECT_THAT(prompts(), ElementsAre(false, true, true));
    time.advance(1ms);
    EXPECT_THAT(prompts(), ElementsAre(false, false, false));
}

TEST_F(LaterLaunch, AGrantMadeInTheSettingsLowersBothWithinTwoSecondsByPolling) {
    (void)manager();
    time.advance(2s);
    grantBoth();
    time.advance(1999ms);
    EXPECT_THAT(prompts(), ElementsAre(false, true, true));
    time.advance(1ms);
    EXPECT_THAT(prompts(), ElementsAre(false, false, false));
}

TEST_F(LaterLaunch, TheToastIsLoweredBeforeThePopup) {
    // An announcement comes before its write: each shows what the one before it stored.
    std::vector<std::vector<bool>> seen;
    grantBoth();
    (void)manager();
    const auto watching = manager().observe([&] { seen.push_back(prompts()); });
    turn();
    // Three flags of the grants, toast, popup; the end is what prompts() says now.
    EXPECT_THAT(seen, ElementsAre(ElementsAre(false, true, true), ElementsAre(false, true, true),
                                  ElementsAre(false, true, true), ElementsAre(false, true, true),
                                  ElementsAre(false, true, false)));
    EXPECT_THAT(prompts(), ElementsAre(false, false, false));
}

TEST_F(LaterLaunch, DismissingOnePromptLeavesTheOther) {
    (void)manager();
    manager().dismissToast();
    EXPECT_THAT(prompts(), ElementsAre(false, true, false));
}

}  // namespace
}  // namespace lumo
