#include "app/PngChunks.h"

#include <gtest/gtest.h>

#include <string>

namespace lumo {
namespace {

using namespace std::string_literals;

const std::string kSignature = "\x89PNG\r\n\x1A\n"s;
const std::string kEnd = "\0\0\0\0IEND\xAE\x42\x60\x82"s;
const std::string kText = "\0\0\0\x02tEXtab0123"s;  // two bytes, and a checksum that nobody looks at here

TEST(PngChunks, AWholePictureClaimsWhatIsThere) {
    EXPECT_FALSE(claimsMorePngThanThereIs(kSignature + kText + kText + kEnd));
}

TEST(PngChunks, WhatIsNoPictureClaimsNothing) {
    EXPECT_FALSE(claimsMorePngThanThereIs(""));
    EXPECT_FALSE(claimsMorePngThanThereIs("<svg/>"));
    EXPECT_FALSE(claimsMorePngThanThereIs("\x89PNG\xFF\xFF\xFF\xFFtEXt"));
}

TEST(PngChunks, AChunkMayReachToTheEndOfTheFileAndNoFurther) {
    EXPECT_FALSE(claimsMorePngThanThereIs(kSignature + "\0\0\0\x03tEXtabc"s));
    EXPECT_TRUE(claimsMorePngThanThereIs(kSignature + "\0\0\0\x04tEXtabc"s));
}

TEST(PngChunks, EveryByteOfALengthCounts) {
    EXPECT_TRUE(claimsMorePngThanThereIs(kSignature + "\xFF\xFF\xFF\xFFtEXt"s));
    EXPECT_TRUE(claimsMorePngThanThereIs(kSignature + "\x01\0\0\0tEXt"s));
    EXPECT_TRUE(claimsMorePngThanThereIs(kSignature + kText + "\0\x01\0\0tEXt"s));
    EXPECT_TRUE(claimsMorePngThanThereIs(kSignature + kText + "\0\0\x01\0tEXt"s));
}

TEST(PngChunks, WhatIsCutOffInAChunksHeadIsForTheReader) {
    EXPECT_FALSE(claimsMorePngThanThereIs(kSignature + "\xFF\xFF\xFF\xFFtEX"s));
    EXPECT_FALSE(claimsMorePngThanThereIs(kSignature + kText.substr(0, 11)));
}

TEST(PngChunks, NothingBehindTheLastChunkCounts) {
    EXPECT_FALSE(claimsMorePngThanThereIs(kSignature + kEnd + "\xFF\xFF\xFF\xFFtEXt"s));
}

TEST(PngChunks, APictureInsideAnotherFileCounts) {
    EXPECT_TRUE(claimsMorePngThanThereIs("icon" + kSignature + kEnd + kSignature + "\x7F\0\0\0tEXt"s));
}

TEST(PngChunks, AFileHoldsSixtyFourPicturesAndNoMore) {
    std::string icon;
    for (int i = 0; i < 64; ++i) icon += kSignature + kEnd;
    EXPECT_FALSE(claimsMorePngThanThereIs(icon));
    EXPECT_TRUE(claimsMorePngThanThereIs(icon + kSignature + kEnd));
}

}  // namespace
}  // namespace lumo
