// The shipped pictures are what their drawings say: a changed drawing needs scripts/artwork.sh.
#include "Artwork.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QTransform>
#include <algorithm>
#include <cctype>
#include <set>
#include <string>

#include "keyboard/KeyboardCase.h"

namespace lumo {
namespace {

using artwork::Export;

const QString kFolder = LUMO_ASSETS_FOLDER;

QString pathOf(const Export& target) {
    return kFolder + '/' + QString::fromUtf8(target.file.data(), static_cast<qsizetype>(target.file.size()));
}

bool isSeen(QRgb one, QRgb other) { return qAlpha(one) > 0 || qAlpha(other) > 0; }

int difference(QRgb one, QRgb other) {
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
           std::abs(qBlue(one) - qBlue(other)) + std::abs(qAlpha(one) - qAlpha(other));
}

/// Per channel, of 255; where both are empty nothing counts, so that a thin line weighs as much as a surface.
double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0.0;
    double seen = 0.0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (!isSeen(one.pixel(x, y), other.pixel(x, y))) continue;
            sum += difference(one.pixel(x, y), other.pixel(x, y));
            seen += 4.0;
        }
    }
    return seen > 0.0 ? sum / seen : 255.0;
}

class Artwork : public testing::TestWithParam<Export> {};

TEST_P(Artwork, HasTheSizeItIsMadeIn) {
    EXPECT_EQ(QImage(pathOf(GetParam())).size(), QSize(GetParam().width, GetParam().height));
}

TEST_P(Artwork, ShowsItsDrawing) {
    const QImage drawn = artwork::render(kFolder + '/' + artwork::drawingOf(GetParam()), GetParam());
    const QImage shipped = QImage(pathOf(GetParam())).convertToFormat(drawn.format());
    ASSERT_EQ(shipped.size(), drawn.size());
    EXPECT_LE(meanDifference(shipped, drawn), 1.0);
}

std::string testName(const testing::TestParamInfo<Export>& info) {
    std::string name(info.param.file);
    std::ranges::replace_if(
        name, [](unsigned char letter) { return !std::isalnum(letter); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Of, Artwork, testing::ValuesIn(artwork::kExports), testName);

/// Qt SVG cuts the radii of wide rectangles to whole percents, and their corners lie elsewhere then.
TEST(KeyboardArtwork, TheCaseHasTheCornersThatLightIsKeptOffBy) {
    constexpr double kPixels = 2.0;  // of a point
    const QImage shipped(kFolder + "/keyimg.png");
    const QPainterPath body = QTransform::fromScale(kPixels, kPixels).map(casePath());
    QPainterPathStroker edge;
    edge.setWidth(1.5);  // a pixel in it may belong to both
    const QPainterPath rim = edge.createStroke(body);
    for (int y = 0; y < shipped.height(); ++y) {
        for (int x = 0; x < shipped.width(); ++x) {
            const QPointF middle(x + 0.5, y + 0.5);
            if (rim.contains(middle)) continue;
            ASSERT_EQ(qAlpha(shipped.pixel(x, y)) == 255, body.contains(middle)) << x << ", " << y;
        }
    }
}

std::set<QString> filesBelow(const QString& folder, const QString& ending) {
    std::set<QString> files;
    QDirIterator each(folder, {'*' + ending}, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext()) files.insert(each.next());
    return files;
}

TEST(ArtworkFolder, HoldsThePicturesThatAreMadeAndNoOthers) {
    std::set<QString> made;
    for (const Export& target : artwork::kExports) made.insert(pathOf(target));
    EXPECT_EQ(filesBelow(kFolder, ".png"), made);
}

TEST(ArtworkFolder, HoldsTheDrawingOfEachPictureAndOneForReference) {
    std::set<QString> drawings{kFolder + "/svg/keycap.svg"};
    for (const Export& target : artwork::kExports) drawings.insert(kFolder + '/' + artwork::drawingOf(target));
    EXPECT_EQ(filesBelow(kFolder, ".svg"), drawings);
}

}  // namespace
}  // namespace lumo
