// A slider's pixels, in every state and at both scales.
#include <cstdlib>

#include "controls/Theme.h"
#include "gui/SliderFixture.h"

namespace lumo {
namespace {

class SliderPicture : public test::SliderFixture {
protected:
    /// On a card, in the slider's own coordinates: the middle of the track is at y = 14.
    QImage painted(double scale) {
        QImage picture(slider->size() * scale, QImage::Format_RGB32);
        picture.setDevicePixelRatio(scale);
        picture.fill(theme::kCard);
        slider->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
        return picture;
    }
    /// Waits until what is to be painted by now has been.
    void settlePaints() {
        const test::EventCount paints(*slider, QEvent::Paint);
        slider->update();
        ASSERT_TRUE(QTest::qWaitFor([&] { return paints.count() > 0; }, 30000));
    }
    /// In pixels. Qt's painting may be off by a rounding or two.
    bool isColor(int x, int y, QRgb expected, double scale = 1.0) {
        const QColor is = painted(scale).pixelColor(x, y);
        const QColor should(expected);
        const auto isClose = [](int a, int b) { return std::abs(a - b) <= 2; };
        return isClose(is.red(), should.red()) && isClose(is.green(), should.green()) &&
               isClose(is.blue(), should.blue());
    }
};

TEST_F(SliderPicture, TheTrackIsFilledFromTheLeftToTheKnob) {
    slider->setValue(2.0);
    EXPECT_EQ(slider->trackRect(), QRectF(6, 12, 220, 4));
    EXPECT_TRUE(isColor(8, 13, 0x7A45F0));
    EXPECT_TRUE(isColor(61, 13, 0x8350F8));
    EXPECT_TRUE(isColor(160, 13, 0x3B3B3F));
    EXPECT_TRUE(isColor(160, 12, 0x3B3B3F));
    EXPECT_TRUE(isColor(160, 15, 0x3B3B3F));
    EXPECT_TRUE(isColor(160, 11, 0x212123));
    EXPECT_TRUE(isColor(160, 16, 0x212123));
    EXPECT_TRUE(isColor(5, 13, 0x212123));
}

TEST_F(SliderPicture, TheKnobIsRoundAndPalesDownwards) {
    slider->setValue(2.0);  // the knob's centre at x = 116
    EXPECT_TRUE(isColor(232, 13, 0xFEFEFE, 2.0));
    EXPECT_TRUE(isColor(232, 27, 0xF2F2F5, 2.0));
    EXPECT_TRUE(isColor(232, 42, 0xE5E5EB, 2.0));
    EXPECT_TRUE(isColor(217, 28, 0xF1F1F4, 2.0));   // leftmost
    EXPECT_TRUE(isColor(246, 28, 0xF1F1F4, 2.0));   // rightmost
    EXPECT_FALSE(isColor(219, 14, 0xFEFEFE, 2.0));  // the corner of its square
}

TEST_F(SliderPicture, TheStepsHaveDotsBelowTheKnobsPlaces) {
    slider->setValue(2.0);
    for (const int x : {28, 130, 334, 436}) EXPECT_TRUE(isColor(x, 48, 0x5F5F61, 2.0)) << x;
    EXPECT_TRUE(isColor(180, 48, 0x212123, 2.0));
    slider->setStepDots(false);
    EXPECT_TRUE(isColor(130, 48, 0x212123, 2.0));
}

TEST_F(SliderPicture, APressedKnobHasAVioletHalo) {
    press(130);
    EXPECT_TRUE(isColor(116, 14, 0xD9D2EE));
    EXPECT_TRUE(isColor(116, 1, 0x3F3261));
    EXPECT_TRUE(isColor(232, 52, 0x3F3261, 2.0));
    release(130);
}

TEST_F(SliderPicture, AHoveredKnobHasAPaleHalo) {
    slider->setValue(2.0);
    moveTo(60, 40);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isColor(116, 1, 0x373739); }, 30000)) << "never";
    moveTo(60, 20);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isColor(116, 1, 0x212123); }, 30000)) << "never";
}

TEST_F(SliderPicture, TheFocusRingStandsAroundTheKnobWithAGap) {
    slider->setValue(2.0);
    focus();
    EXPECT_TRUE(isColor(116, 1, 0x212123));
    EXPECT_TRUE(isColor(116, 3, 0xA888FF));
    EXPECT_TRUE(isColor(116, 5, 0x212123));
    EXPECT_TRUE(isColor(107, 13, 0x212123));  // the gap also parts the track
    for (const int y : {5, 6, 7}) EXPECT_TRUE(isColor(232, y, 0xA888FF, 2.0)) << y;
    for (const int y : {3, 9, 10, 11}) EXPECT_TRUE(isColor(232, y, 0x212123, 2.0)) << y;
    page.setFocus();
    EXPECT_FALSE(isColor(116, 3, 0xA888FF));
}

TEST_F(SliderPicture, TheRingGoesWithTheFocus) {
    focus();
    settlePaints();
    const test::EventCount paints(*slider, QEvent::Paint);
    slider->clearFocus();  // the page would paint itself with the focus
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count() > 0; }, 5000));
}

TEST_F(SliderPicture, NothingIsPaintedWhileNothingChanges) {
    slider->setValue(2.0);
    settlePaints();
    const test::EventCount paints(*slider, QEvent::Paint);
    slider->setValue(2.0);
    slider->setStepDots(true);
    moveTo(60, 20);  // beside what can be pressed
    page.update(0, 90, 10, 10);
    const test::EventCount pagePaints(page, QEvent::Paint);
    ASSERT_TRUE(QTest::qWaitFor([&] { return pagePaints.count() > 0; }, 30000));
    EXPECT_EQ(paints.count(), 0);
}

}  // namespace
}  // namespace lumo
