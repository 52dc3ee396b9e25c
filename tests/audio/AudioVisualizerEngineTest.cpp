// The engine's runs in virtual time: what it publishes, when, and what the keyboard hears of it.
#include "audio/AudioVisualizerEngine.h"

#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class VisualizerEngine : public test::LinkFixture {
protected:
    AudioVisualizerEngine& engine() { return objects.audioVisualizerEngine(); }

    /// For an engine that was started just now.
    void betweenTheFirstTickAndItsLevels(Task task) {
        time.at(33ms, std::move(task));  // due at the same time as the tick, and posted before what this posts
        time.advance(33ms);
    }
    /// Brightness of every parameter block written.
    std::vector<int> levelsSent() {
        std::vector<int> levels;
        for (const auto& report : firmware.writes()) {
            if (report.at(1) == 0x04) levels.push_back(report.at(20));
        }
        return levels;
    }
};

TEST_F(VisualizerEngine, RestsAtFirst) {
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_EQ(engine().frequencyLevels.get().size(), 16U);
    EXPECT_THAT(engine().frequencyLevels.get(), Each(0.1));
    EXPECT_EQ(engine().inputSource.get(), "Internal Rhythm Generator");
    time.advance(10s);
    EXPECT_THAT(engine().frequencyLevels.get(), Each(0.1));
}

TEST_F(VisualizerEngine, IsOneAndTheSameForEveryone) {
    EXPECT_EQ(&AudioVisualizerEngine::shared(), &AudioVisualizerEngine::shared());
    EXPECT_EQ(&AudioVisualizerEngine::shared(), &engine());
}

TEST_F(VisualizerEngine, TicksFirstAfter33Milliseconds) {
    engine().start();
    EXPECT_TRUE(engine().isRunning.get());
    time.advance(32999us);
    EXPECT_THAT(engine().frequencyLevels.get(), Each(0.1));
    time.advance(1us);
    EXPECT_EQ(toBytes(engine().frequencyLevels.get()).at(4), 181);
}

TEST_F(VisualizerEngine, TicksThirtyTimesIn990Milliseconds) {
    engine().start();
    int ticks = 0;
    const auto counting = engine().observe([&ticks] { ++ticks; });
    time.advance(990ms);
    EXPECT_EQ(ticks, 30);
}

TEST_F(VisualizerEngine, PublishesTheLevelsATurnAfterTheLinkHasThem) {
    engine().start();
    BandLevels atTheCommand{};
    int announced = 0;
    const auto listening = link().observe([&] {
        ++announced;
        atTheCommand = engine().frequencyLevels.get();
    });
    time.advance(33ms);
    EXPECT_EQ(announced, 1);  // step 1 changes the brightness from 4 to 2
    EXPECT_THAT(atTheCommand, Each(0.1));
    EXPECT_THAT(engine().frequencyLevels.get(), Not(Each(0.1)));
}

TEST_F(VisualizerEngine, StartedTwiceItHasOneTimer) {
    engine().start();
    time.advance(20ms);
    int announced = 0;
    const auto counting = engine().observe([&announced] { ++announced; });
    engine().start();
    EXPECT_EQ(announced, 0);
    time.advance(79ms);
    EXPECT_EQ(announced, 3);
}

TEST_F(VisualizerEngine, StoppedItRestsAtOnceAndStaysAtRest) {
    engine().start();
    time.advance(100ms);
    engine().stop();
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_THAT(engine().frequencyLevels.get(), Each(0.1));
    time.advance(1s);
    EXPECT_THAT(engine().frequencyLevels.get(), Each(0.1));
}

TEST_F(VisualizerEngine, LevelsOfATickBeforeTheStopAreDropped) {
    engine().start();
    betweenTheFirstTickAndItsLevels([this] { engine().stop(); });
    EXPECT_EQ(link().brightness.get(), 2);  // the tick was there
    EXPECT_THAT(engine().frequencyLevels.get(), Each(0.1));
}

TEST_F(VisualizerEngine, LevelsOfATickBeforeTheStopAreDroppedAlsoAfterAnotherStart) {
    engine().start();
    betweenTheFirstTickAndItsLevels([this] {
        engine().stop();
        engine().start();
    });
    EXPECT_TRUE(engine().isRunning.get());
    EXPECT_THAT(engine().frequencyLevels.get(), Each(0.1));
}

TEST_F(VisualizerEngine, StoppingAStoppedOneOnlyPublishesTheRestAgain) {
    int announced = 0;
    const auto counting = engine().observe([&announced] { ++announced; });
    engine().stop();
    EXPECT_EQ(announced, 2);
    EXPECT_FALSE(engine().isRunning.get());
    EXPECT_THAT(engine().frequencyLevels.get(), Each(0.1));
}

TEST_F(VisualizerEngine, GoesOnWithTheWaveWhereItWasStopped) {
    engine().start();
    time.advance(9 * 33ms);
    engine().stop();
    time.advance(5s);
    engine().start();
    time.advance(33ms);
    EXPECT_EQ(toBytes(engine().frequencyLevels.get()).at(1), 226);  // step 10
}

TEST_F(VisualizerEngine, SendsAReportOnlyWhenTheLoudnessChanges) {
    connect();
    engine().start();
    time.advance(33s);  // a thousand ticks
    engine().stop();
    time.settle();
    EXPECT_THAT(levelsSent(), ElementsAre(2, 3, 2, 3, 2, 3, 2, 3, 2, 3, 2, 3, 2, 1, 2, 3, 2, 3, 2, 3, 2, 3, 2, 3, 2, 3,
                                          2, 3, 2, 3, 2, 1, 2, 3, 2, 3));
    EXPECT_EQ(link().brightness.get(), 3);
}

TEST_F(VisualizerEngine, MovesTheLinksBrightnessAndNotTheUsersSlider) {
    engine().start();
    time.advance(33ms);
    EXPECT_EQ(link().brightness.get(), 2);
    EXPECT_EQ(state().brightnessLevel.get(), 4.0);
}

TEST_F(VisualizerEngine, WorksWithoutAKeyboardAndWithoutAWord) {
    recordStatuses();
    engine().start();
    time.advance(1s);
    EXPECT_THAT(statuses(), IsEmpty());
    EXPECT_THAT(firmware.writes(), IsEmpty());
    EXPECT_THAT(engine().frequencyLevels.get(), Not(Each(0.1)));
}

TEST_F(VisualizerEngine, IgnoresGainAndSmoothness) {
    state().musicGain.set(5.0);
    state().musicSmooth.set(1.0);
    engine().start();
    time.advance(33ms);
    EXPECT_EQ(toBytes(engine().frequencyLevels.get()).at(4), 181);
}

TEST_F(VisualizerEngine, DestroyedAfterATickItPublishesNothing) {
    auto own = std::make_unique<AudioVisualizerEngine>(time.mainQueue(), link());
    own->start();
    betweenTheFirstTickAndItsLevels([&own] { own.reset(); });
    time.advance(1s);
    EXPECT_EQ(link().brightness.get(), 2);
}

}  // namespace
}  // namespace lumo
