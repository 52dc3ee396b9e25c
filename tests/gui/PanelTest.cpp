// A panel looks as its rounded shape does, however it is put together.
#include "controls/Panel.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cstdlib>

#include "controls/Theme.h"

namespace lumo {
namespace {

struct Case {
    QRectF rect;
    double scale = 1.0;
    QBrush fill;
};

class Panel : public testing::TestWithParam<Case> {
protected:
    static constexpr double kRadius = 11.0;
    static constexpr QColor kLine = theme::white(20);

    template <typename Paint>
    [[nodiscard]] static QImage picture(Paint paint) {
        const double scale = GetParam().scale;
        QImage image((QSizeF(160.0, 120.0) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(QColor(0x1A, 0x1A, 0x1C));
        QPainter painter(&image);
        painter.scale(scale, scale);
        paint(painter);
        return image;
    }
    static void paintShape(QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(GetParam().fill);
        painter.drawRoundedRect(GetParam().rect, kRadius, kRadius);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(kLine, 1.0));
        painter.drawRoundedRect(GetParam().rect.adjusted(0.5, 0.5, -0.5, -0.5), kRadius - 0.5, kRadius - 0.5);
    }
};

int greatestDifference(const QImage& one, const QImage& other) {
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            greatest = std::max({greatest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                 std::abs(qBlue(a) - qBlue(b))});
        }
    }
    return greatest;
}

TEST_P(Panel, LooksAsItsShape) {
    const QImage panel =
        picture([](QPainter& painter) { paintPanel(painter, GetParam().rect, kRadius, GetParam().fill, kLine); });
    EXPECT_LE(greatestDifference(panel, picture(paintShape)), 1);
}

TEST_P(Panel, LeavesThePainterSmooth) {
    (void)picture([](QPainter& painter) {
        paintPanel(painter, GetParam().rect, kRadius, GetParam().fill, kLine);
        EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing));
        EXPECT_FALSE(painter.hasClipping());
    });
}

QBrush gradient() {
    QLinearGradient gradient(0.0, 0.0, 0.0, 120.0);
    gradient.setColorAt(0.0, Qt::red);
    gradient.setColorAt(1.0, Qt::blue);
    return gradient;
}

constexpr QRectF kUsual(6.0, 4.0, 140.0, 110.0);

INSTANTIATE_TEST_SUITE_P(
    , Panel,
    testing::Values(Case{kUsual, 1.0, theme::kCard}, Case{kUsual, 2.0, theme::kCard}, Case{kUsual, 3.0, theme::kCard},
                    Case{kUsual, 1.25, theme::kCard}, Case{kUsual, 1.5, theme::kCard}, Case{kUsual, 2.5, theme::kCard},
                    Case{{4.0, 4.0, 140.0, 100.0}, 1.25, theme::kCard},  // on whole pixels, but its line is not
                    Case{{6.5, 4.25, 140.0, 110.0}, 1.0, theme::kCard},
                    Case{{6.5, 4.5, 140.0, 110.0}, 2.0, theme::kCard}, Case{{6.0, 4.0, 140.0, 33.0}, 1.0, theme::kCard},
                    Case{{6.0, 4.0, 140.0, 34.0}, 1.0, theme::kCard}, Case{{6.0, 4.0, 140.0, 22.0}, 1.0, theme::kCard},
                    Case{kUsual, 1.0, theme::white(40)}, Case{kUsual, 1.0, gradient()}));

}  // namespace
}  // namespace lumo
