#include "controls/TextShape.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cstdlib>

#include "controls/Theme.h"

namespace lumo {
namespace {

struct Sample {
    const char* text;
    theme::TextStyle style;
};

class TextShapes : public testing::TestWithParam<Sample> {
protected:
    const QString text = QString::fromUtf8(GetParam().text);
    const QFont font = theme::font(GetParam().style);

    static QImage filled(const QPainterPath& outlines) {
        QImage image(400, 40, QImage::Format_Grayscale8);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(4.0, 28.0);
        painter.fillPath(outlines, Qt::white);
        return image;
    }

    static int greatestDifference(const QImage& one, const QImage& other) {
        int greatest = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                greatest = std::max(greatest, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
            }
        }
        return greatest;
    }
};

TEST_P(TextShapes, AreTheOutlinesThatThePainterKnows) {
    QPainterPath expected;
    expected.addText({}, font, text);
    EXPECT_EQ(textShape(text, font).outlines().elementCount(), expected.elementCount());
    EXPECT_LE(greatestDifference(filled(textShape(text, font).outlines()), filled(expected)), 8);
}

TEST_P(TextShapes, AreAsWideAsTheFontSays) {
    EXPECT_NEAR(textShape(text, font).advance, QFontMetricsF(font).horizontalAdvance(text), 1.0 / 64.0);
}

TEST_P(TextShapes, AreTheSameTheSecondTime) {
    const QPainterPath first = textShape(text, font).outlines();
    static_cast<void>(textShape("Another", font));
    EXPECT_EQ(textShape(text, font).outlines(), first);
}

INSTANTIATE_TEST_SUITE_P(Of, TextShapes,
                         testing::Values(Sample{"", theme::kRowStyle}, Sample{" ", theme::kRowStyle},
                                         Sample{"Custom Per-Key RGB Synchronized (67 keys)", theme::kRowStyle},
                                         Sample{"VEXA LUMO 65", theme::kBrandStyle},
                                         Sample{"AVATAR To, We. 11:10 ", theme::kNavStyle},
                                         Sample{"0x1B \u2022 LED Index: 0 \u2192", theme::kSectionStyle},
                                         Sample{"\u00DCber \u0416\u0437 \u4E2D \u05D0\u05D1", theme::kRowStyle}));

TEST(TextShape, OfManyTextsNoneIsWrong) {
    const QFont font = theme::font(theme::kRowStyle);
    const double one = textShape("8", font).advance;
    for (int i = 0; i < 2000; ++i) {
        const QString text(1 + i % 40, '8');
        EXPECT_NEAR(
            textShape(text + QString::number(i % 7), font).advance - textShape(QString::number(i % 7), font).advance,
            one * static_cast<double>(text.size()), 0.5);
    }
}

}  // namespace
}  // namespace lumo
