#include "controls/Columns.h"

#include <gtest/gtest.h>

#include <array>

namespace lumo {
namespace {

TEST(Columns, ShareTheRoomBetweenTheGaps) {
    const auto columns = divide(98, 4, std::array{Column{}, Column{}, Column{}});
    ASSERT_EQ(columns.size(), 3U);
    EXPECT_EQ(columns[0].begin, 0);
    EXPECT_EQ(columns[0].length, 30);
    EXPECT_EQ(columns[1].begin, 34);
    EXPECT_EQ(columns[2].end(), 98);
}

TEST(Columns, UnequalSharesAreKept) {
    const auto columns = divide(212 + 8, 8, std::array{Column{1.0}, Column{1.72}});
    EXPECT_EQ(columns[0].length, 78);
    EXPECT_EQ(columns[1].begin, 86);
    EXPECT_EQ(columns[1].end(), 220);
}

TEST(Columns, AColumnThatWouldGetTooLittleGetsItsLeast) {
    const auto columns = divide(868, 12, std::array{Column{1.7, 396.0}, Column{1.0, 200.0}, Column{1.0, 236.0}});
    EXPECT_EQ(columns[0].length, 396);
    EXPECT_EQ(columns[1].length, 212);
    EXPECT_EQ(columns[2].length, 236);
    EXPECT_EQ(columns[2].end(), 868);
}

TEST(Columns, WhatOneColumnTakesMayBringAnotherToItsLeast) {
    const auto columns = divide(100, 0, std::array{Column{1.0, 60.0}, Column{1.0, 10.0}, Column{1.0, 30.0}});
    EXPECT_EQ(columns[0].length, 60);
    EXPECT_EQ(columns[1].length, 10);
    EXPECT_EQ(columns[2].length, 30);
}

}  // namespace
}  // namespace lumo
