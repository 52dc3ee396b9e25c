#include "system/PermissionFixture.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using FirstLaunch = test::PermissionFixture;

TEST_F(FirstLaunch, WithoutGrantsTheWelcomeIsShownAndTheOtherPromptsAreNot) {
    EXPECT_THAT(prompts(), ElementsAre(true, false, false));
    time.advance(std::chrono::seconds(10));
    EXPECT_THAT(prompts(), ElementsAre(true, false, false));
    EXPECT_THAT(journal, IsEmpty());  // nothing was asked, opened or written
}

TEST_F(FirstLaunch, WithBothGrantsTheWelcomeIsRaisedAndTheFirstCheckWithdrawsItAndWritesTheFlag) {
    grantBoth();
    EXPECT_THAT(prompts(), ElementsAre(true, false, false));
    EXPECT_THAT(journal, IsEmpty());
    turn();
    EXPECT_THAT(prompts(), ElementsAre(false, false, false));
    EXPECT_THAT(journal, ElementsAre("set VexaLumoHasLaunchedBefore true"));
}

TEST_F(FirstLaunch, TheFlagIsWrittenByChecksOnlyWhileTheWelcomeIsShown) {
    grantBoth();
    (void)manager();
    time.advance(std::chrono::seconds(10));
    EXPECT_THAT(journal, ElementsAre("set VexaLumoHasLaunchedBefore true"));
}

TEST_F(FirstLaunch, CompletingItWritesTheFlagBeforeTheWelcomeGoes) {
    (void)manager();
    std::vector<std::string> atChange;
    const auto watching = manager().observe([&] { atChange = journal; });
    manager().completeFirstLaunch();
    EXPECT_FALSE(manager().showFirstLaunchPopup.get());
    EXPECT_THAT(atChange, ElementsAre("set VexaLumoHasLaunchedBefore true"));
}

TEST_F(FirstLaunch, TheFlagWrittenFalseByHandIsAFirstLaunch) {
    platform.kept.values[kFlag] = false;
    EXPECT_THAT(prompts(), ElementsAre(true, false, false));
}

TEST_F(FirstLaunch, TheFlagIsReadOnceAndBeforeTheGrantsAreSampled) {
    bool wasReadBefore = false;
    class Watching final : public Privacy {
    public:
        explicit Watching(std::function<void()> sampled) : m_sampled(std::move(sampled)) {}
        AudioAuthorization audioAuthorization() override { return m_sampled(), AudioAuthorization::denied; }
        void requestAudioAccess(std::function<void(bool)>) override {}
        bool preflightListenEventAccess() override { return false; }
        void requestListenEventAccess() override {}
        bool isProcessTrusted() override { return false; }
        bool isProcessTrustedWithPrompt() override { return false; }

    private:
        std::function<void()> m_sampled;
    };
    std::size_t flagReads = 0;
    Watching privacy([&] { wasReadBefore = flagReads == 1; });
    class Counting final : public Preferences {
    public:
        explicit Counting(std::size_t& reads) : m_reads(reads) {}
        bool boolForKey(std::string_view) override { return ++m_reads, false; }
        void setBool(bool, std::string_view) override {}

    private:
        std::size_t& m_reads;
    };
    Counting preferences(flagReads);
    const auto made = PermissionManager::make(time.mainQueue(), privacy, platform.surroundings, preferences);
    EXPECT_TRUE(wasReadBefore);
    EXPECT_EQ(flagReads, 1u);
}

}  // namespace
}  // namespace lumo
