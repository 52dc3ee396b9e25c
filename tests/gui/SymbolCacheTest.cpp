#include "controls/SymbolCache.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

class Cache : public testing::Test {
protected:
    static constexpr qsizetype kEntryOf16 = 16 * 16 * 4 + SymbolCache::kEntryBytes;
    int drawn = 0;
    SymbolCache cache{[this](const QString& name, QSize pixels) { return draw(name, pixels); }};

    QImage draw(const QString& name, QSize pixels) {
        ++drawn;
        if (name == "unknown") return {};
        QImage shape(pixels, QImage::Format_ARGB32_Premultiplied);
        shape.fill(Qt::white);
        return shape;
    }
};

TEST_F(Cache, PaintsTheSameSymbolAgainWithoutDrawingOrTinting) {
    const QImage first = cache.tinted("plus", {16, 16}, Qt::red);
    const QImage second = cache.tinted("plus", {16, 16}, Qt::red);
    EXPECT_EQ(drawn, 1);
    EXPECT_EQ(second.constBits(), first.constBits());  // the very same pixels
    EXPECT_EQ(first.pixelColor(8, 8), QColor(Qt::red));
}

TEST_F(Cache, TintsTheOneShapeInEachColor) {
    EXPECT_EQ(cache.tinted("plus", {16, 16}, Qt::red).pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(cache.tinted("plus", {16, 16}, Qt::green).pixelColor(8, 8), QColor(Qt::green));
    EXPECT_EQ(cache.tinted("plus", {16, 16}, Qt::red).pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(drawn, 1);
}

TEST_F(Cache, TellsOpacitiesApart) {
    EXPECT_EQ(cache.tinted("plus", {16, 16}, QColor(255, 0, 0, 255)).pixelColor(8, 8).alpha(), 255);
    EXPECT_EQ(cache.tinted("plus", {16, 16}, QColor(255, 0, 0, 51)).pixelColor(8, 8).alpha(), 51);
}

TEST_F(Cache, DrawsAnewForEachSizeAndScaleOfIt) {
    EXPECT_EQ(cache.tinted("plus", {16, 16}, Qt::red).size(), QSize(16, 16));
    EXPECT_EQ(cache.tinted("plus", {32, 32}, Qt::red).size(), QSize(32, 32));
    EXPECT_EQ(cache.tinted("plus", {16, 32}, Qt::red).size(), QSize(16, 32));
    EXPECT_EQ(drawn, 3);
}

TEST_F(Cache, DrawsAnewForEachName) {
    (void)cache.tinted("plus", {16, 16}, Qt::red);
    (void)cache.tinted("xmark", {16, 16}, Qt::red);
    EXPECT_EQ(drawn, 2);
}

TEST_F(Cache, RemembersThatThereIsNoSymbol) {
    EXPECT_TRUE(cache.tinted("unknown", {16, 16}, Qt::red).isNull());
    EXPECT_TRUE(cache.tinted("unknown", {16, 16}, Qt::green).isNull());
    EXPECT_EQ(drawn, 1);
}

TEST_F(Cache, ForgetsTheOldestOnceItHoldsTooMuch) {
    SymbolCache small([this](const QString& name, QSize pixels) { return draw(name, pixels); }, 2 * kEntryOf16);
    for (const char* const name : {"a", "b", "c", "b", "c"}) (void)small.tinted(name, {16, 16}, Qt::red);
    EXPECT_EQ(drawn, 3);
    (void)small.tinted("a", {16, 16}, Qt::red);
    EXPECT_EQ(drawn, 4);
}

TEST_F(Cache, KeepsHalfAsManyTintsAsShapes) {
    SymbolCache small([this](const QString& name, QSize pixels) { return draw(name, pixels); }, 4 * kEntryOf16);
    const auto pixelsOf = [&small](const QColor& tint) { return small.tinted("plus", {16, 16}, tint).constBits(); };
    const QImage red = small.tinted("plus", {16, 16}, Qt::red);
    (void)pixelsOf(Qt::green);
    EXPECT_EQ(pixelsOf(Qt::red), red.constBits());
    (void)pixelsOf(Qt::green);
    (void)pixelsOf(Qt::blue);
    EXPECT_NE(pixelsOf(Qt::red), red.constBits());
    EXPECT_EQ(drawn, 1);
}

TEST_F(Cache, PaintsWhatIsTooLargeToKeep) {
    SymbolCache small([this](const QString& name, QSize pixels) { return draw(name, pixels); }, 16);
    EXPECT_EQ(small.tinted("plus", {16, 16}, Qt::red).pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(small.tinted("plus", {16, 16}, Qt::red).pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(drawn, 2);
}

}  // namespace
}  // namespace lumo
