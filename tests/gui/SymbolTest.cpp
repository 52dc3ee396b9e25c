#include "controls/Symbol.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QImage>

namespace lumo {
namespace {

const QStringList kNames{"arrow.clockwise",
                         "arrow.down.circle.fill",
                         "arrow.down.doc.fill",
                         "arrow.triangle.2.circlepath",
                         "arrow.up.circle",
                         "circle.grid.2x2",
                         "cpu",
                         "exclamationmark.shield.fill",
                         "exclamationmark.triangle.fill",
                         "gearshape",
                         "hexagon.fill",
                         "keyboard",
                         "keyboard.fill",
                         "mic.fill",
                         "mic.slash.fill",
                         "paintbrush.fill",
                         "plus",
                         "rainbow",
                         "sun.max",
                         "trash",
                         "waveform",
                         "xmark"};
const QRect kFrame(12, 12, 24, 24);

/// A symbol of 24 points in the middle of 48.
QImage painted(const QString& name, const QColor& tint, double scale = 1.0) {
    QImage picture(QSize(48, 48) * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintSymbol(painter, kFrame, name, tint);
    return picture;
}

int alphaAt(const QImage& picture, int x, int y) { return picture.pixelColor(x, y).alpha(); }

TEST(Symbols, AreTheOnesThePagesName) {
    QStringList files;
    for (const QString& file : QDir(":/symbols").entryList()) files += file.chopped(4);
    files.sort();
    EXPECT_EQ(files.join(' ').toStdString(), kNames.join(' ').toStdString());
}

struct Pixels {
    int outside = 0;  // the frame
    int covered = 0;  // more than half
    int otherwiseTinted = 0;
};

Pixels pixelsOf(const QImage& picture, const QColor& tint) {
    Pixels found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            found.outside += pixel.alpha() > 0 && !kFrame.contains(x, y);
            found.covered += pixel.alpha() > 127;
            found.otherwiseTinted += pixel.alpha() == 255 && pixel != tint;
        }
    }
    return found;
}

class SymbolNamed : public testing::TestWithParam<QString> {};

TEST_P(SymbolNamed, IsPaintedInsideItsFrameInItsTint) {
    const QColor tint(0xB9, 0xA3, 0xFF);
    const Pixels pixels = pixelsOf(painted(GetParam(), tint), tint);
    EXPECT_EQ(pixels.outside, 0);
    EXPECT_EQ(pixels.otherwiseTinted, 0);
    EXPECT_GE(pixels.covered, 16);
    EXPECT_LE(pixels.covered, 432);  // three quarters: no drawing fills its frame
}

std::string testName(const testing::TestParamInfo<QString>& info) {
    return QString(info.param).replace('.', '_').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Of, SymbolNamed, testing::ValuesIn(kNames), testName);

TEST(Symbol, IsCrispAtTheScaleOfTheScreen) {
    const QImage picture = painted("plus", Qt::white, 2.0);
    EXPECT_EQ(alphaAt(picture, 48, 48), 255);  // the crossing
    EXPECT_EQ(alphaAt(picture, 34, 48), 255);  // the left end, at 4.75 of 24 units
    EXPECT_EQ(alphaAt(picture, 30, 48), 0);
    EXPECT_EQ(alphaAt(picture, 40, 45), 0);  // 3.5 pixels thick
}

TEST(Symbol, KeepsTheOpacityOfItsTint) {
    EXPECT_EQ(painted("hexagon.fill", QColor(255, 255, 255, 128)).pixelColor(24, 24), QColor(255, 255, 255, 128));
}

TEST(Symbol, OfAnUnknownNamePaintsNothing) {
    testing::internal::CaptureStderr();
    const QImage picture = painted("no.such.symbol", Qt::white);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    QImage empty(picture.size(), picture.format());
    empty.fill(Qt::transparent);
    EXPECT_EQ(picture, empty);
}

TEST(Symbol, WithoutRoomPaintsNothing) {
    QImage picture(8, 8, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const QImage before = picture;
    QPainter painter(&picture);
    paintSymbol(painter, QRectF(2, 2, 0, 4), "plus", Qt::white);
    painter.end();
    EXPECT_EQ(picture, before);
}

TEST(Symbol, LeavesThePainterAsItWas) {
    QImage picture(48, 48, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    for (const bool isSmooth : {false, true}) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform, isSmooth);
        paintSymbol(painter, kFrame, "plus", Qt::white);
        EXPECT_EQ(painter.testRenderHint(QPainter::SmoothPixmapTransform), isSmooth);
    }
}

}  // namespace
}  // namespace lumo
