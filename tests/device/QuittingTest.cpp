// Quitting never waits: the report under way is the last one.
#include <gmock/gmock.h>

#include "support/LinkFixture.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class Quitting : public test::LinkFixture {};

TEST_F(Quitting, NoReportFollowsTheOneUnderWay) {
    connect();
    link().setLightingMode(5);
    link().setLightingMode(2);
    time.at(30ms, [&] { objects.stopDeviceTraffic(); });
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A));
}

TEST_F(Quitting, AHangingKeyboardIsNotWaitedFor) {
    connect();
    fault("get 8a hang");
    link().setLightingMode(5);
    const auto before = time.now();
    time.at(1s, [&] { objects.stopDeviceTraffic(); });
    time.settle();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A));
    EXPECT_LT(time.now() - before, 5s);
}

TEST_F(Quitting, WithoutALinkThereIsNothingToStop) {
    objects.stopDeviceTraffic();
    EXPECT_EQ(time.pendingIoTasks(), 0U);
}

}  // namespace
}  // namespace lumo
