#include "controls/SoftShadow.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

TEST(SoftShadow, IsDrawnOnceForASizeAtAnyScale) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        SoftShadow shadow(0.55, 32.0, 24.0);
        const qint64 first = shadow.pictureFor({448.0, 407.0}, scale).cacheKey();
        EXPECT_EQ(shadow.pictureFor({448.0, 407.0}, scale).cacheKey(), first) << scale;
        EXPECT_NE(shadow.pictureFor({448.0, 408.0}, scale).cacheKey(), first) << scale;
    }
}

TEST(SoftShadow, IsDrawnAnewForAnotherScaleAndAfterItWasForgotten) {
    SoftShadow shadow(0.5, 16.0, 10.0);
    const qint64 first = shadow.pictureFor({500.0, 60.0}, 1.0).cacheKey();
    const qint64 second = shadow.pictureFor({500.0, 60.0}, 2.0).cacheKey();
    EXPECT_NE(second, first);
    shadow.forget();
    EXPECT_NE(shadow.pictureFor({500.0, 60.0}, 2.0).cacheKey(), second);
}

}  // namespace
}  // namespace lumo
