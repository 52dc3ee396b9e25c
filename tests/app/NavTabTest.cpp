#include "app/NavTab.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

TEST(NavTab, NumbersOneToFiveArePages) {
    EXPECT_EQ(navTabFromRaw(1), NavTab::keyAssign);
    EXPECT_EQ(navTabFromRaw(2), NavTab::lighting);
    EXPECT_EQ(navTabFromRaw(3), NavTab::macro);
    EXPECT_EQ(navTabFromRaw(4), NavTab::music);
    EXPECT_EQ(navTabFromRaw(5), NavTab::settings);
}

TEST(NavTab, AnyOtherNumberIsNone) {
    EXPECT_EQ(navTabFromRaw(0), std::nullopt);
    EXPECT_EQ(navTabFromRaw(6), std::nullopt);
    EXPECT_EQ(navTabFromRaw(-1), std::nullopt);
}

TEST(NavTab, LabelsAndPicturesAreThoseOfTheArtwork) {
    const NavTabLabel expected[] = {
        {"Key Assignment", "navi2_nr.png", "navi2_dn.png", "keyboard"},
        {"Lighting Effect", "navi3_nr.png", "navi3_dn.png", "sun.max"},
        {"Macro Manager", "navi6_nr.png", "navi6_dn.png", "cpu"},
        {"Music Visualizer", "navi4_nr.png", "navi4_dn.png", "waveform"},
        {"Device Settings", "navi5_nr.png", "navi5_dn.png", "gearshape"},
    };
    for (std::int64_t number = 1; number <= 5; ++number) {
        const NavTab tab = *navTabFromRaw(number);
        EXPECT_EQ(rawValue(tab), number);
        EXPECT_EQ(kAllTabs.at(static_cast<std::size_t>(number - 1)), tab);
        const NavTabLabel& label = expected[number - 1];
        EXPECT_EQ(labelOf(tab).title, label.title);
        EXPECT_EQ(labelOf(tab).iconNormal, label.iconNormal);
        EXPECT_EQ(labelOf(tab).iconActive, label.iconActive);
        EXPECT_EQ(labelOf(tab).fallbackSymbol, label.fallbackSymbol);
    }
}

}  // namespace
}  // namespace lumo
