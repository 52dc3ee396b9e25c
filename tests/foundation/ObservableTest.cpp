#include "foundation/Observable.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>
#include <vector>

namespace lumo {
namespace {

struct Thing final : ObservableObject {
    Published<int> number{*this, 1};
    SharedPublished<int> level{*this, 1};
};

TEST(Published, AnnouncesBeforeItStores) {
    Thing thing;
    int seen = 0;
    const auto subscription = thing.observe([&] { seen = thing.number.get(); });
    thing.number.set(2);
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(thing.number.get(), 2);
}

TEST(Published, AnnouncesAWriteOfAnEqualValue) {
    Thing thing;
    int calls = 0;
    const auto subscription = thing.observe([&] { ++calls; });
    thing.number.set(1);
    EXPECT_EQ(calls, 1);
}

TEST(SharedPublished, AnnouncesBeforeItStoresAndHandsOutCopies) {
    Thing thing;
    int seen = 0;
    const auto subscription = thing.observe([&] { seen = thing.level.snapshot(); });
    thing.level.set(2);
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(thing.level.snapshot(), 2);
}

TEST(SharedPublished, CanBeReadWhileTheMainThreadWrites) {
    Thing thing;
    std::thread reader([&] {
        while (thing.level.snapshot() != 1000) std::this_thread::yield();
    });
    for (int i = 0; i <= 1000; ++i) thing.level.set(i);
    reader.join();
    EXPECT_EQ(thing.level.get(), 1000);
}

TEST(Subscription, EndsTheObservationWhenItGoes) {
    Thing thing;
    int calls = 0;
    {
        const auto subscription = thing.observe([&] { ++calls; });
    }
    thing.number.set(2);
    EXPECT_EQ(calls, 0);
}

TEST(Subscription, MayOutliveTheObservedObject) {
    Subscription subscription;
    {
        Thing thing;
        subscription = thing.observe([] {});
    }
    subscription = Subscription{};
}

TEST(Subscription, AnObserverDroppedDuringAnAnnouncementIsNotCalled) {
    Thing thing;
    int calls = 0;
    std::optional<Subscription> second;
    const auto first = thing.observe([&] { second.reset(); });
    second = thing.observe([&] { ++calls; });
    thing.number.set(2);
    EXPECT_EQ(calls, 0);
}

TEST(Subscription, AnObserverAddedDuringAnAnnouncementHearsTheNextOne) {
    Thing thing;
    int calls = 0;
    std::vector<Subscription> added;
    const auto first = thing.observe([&] {
        if (added.empty()) added.push_back(thing.observe([&] { ++calls; }));
    });
    thing.number.set(2);
    EXPECT_EQ(calls, 0);
    thing.number.set(3);
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace lumo
