// Pictures and colours of the macro page.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <limits>

#include "app/AssetManager.h"
#include "controls/Picture.h"
#include "controls/Symbol.h"
#include "gui/MacroFixture.h"
#include "macro/TimelineHeading.h"

namespace lumo {
namespace {

void paintAsset(QImage& picture, const QRectF& frame, std::string_view name) {
    const QImage asset = AssetManager::shared().image(name);
    ASSERT_FALSE(asset.isNull()) << name;
    QPainter painter(&picture);
    paintPicture(painter, frame, asset);
}

class MacroLooks : public test::MacroFixture {
protected:
    void SetUp() override {
        platform.resources.directory = LUMO_ASSETS_FOLDER;
        showMacros();
    }

    QImage pictureOf(const QString& label) { return view->grab(rectOf(control(label))).toImage(); }
    /// Where the mark before the button's label stands.
    static QRectF markRect(const QImage& button, const QString& label, double size) {
        const double textWidth = Lettering(theme::kButtonStyle).widthOf(label);
        return {(button.width() - size - 6.0 - textWidth) / 2.0, 14.0 - size / 2.0, size, size};
    }
    /// The button without what is painted in that place.
    static QImage without(const QImage& button, const QRectF& frame) {
        QImage empty = button;
        QPainter(&empty).fillRect(frame.toAlignedRect(), button.pixelColor(4, 14));
        return empty;
    }
    /// The button looks as if the picture of that name had been painted before its label.
    bool hasPicture(const QString& label, std::string_view name) {
        const QImage shown = pictureOf(label);
        const QRectF frame = markRect(shown, label, 16.0);
        QImage expected = without(shown, frame);
        paintAsset(expected, frame, name);
        return shown == expected;
    }
    static bool hasSymbol(const QImage& shown, const QRectF& frame, const QString& name, const QColor& color) {
        QImage expected = without(shown, frame);
        QPainter painter(&expected);
        paintSymbol(painter, frame, name, color);
        painter.end();
        return shown == expected;
    }
    /// The letter pixel of the button's label that is farthest from its ground.
    QColor inkOf(const QString& label) {
        const QImage shown = view->grab(rectOf(control(label))).toImage();
        QColor ink = Qt::black;
        for (int y = 6; y < 22; ++y) {
            for (int x = 36; x < shown.width() - 6; ++x) {
                if (shown.pixelColor(x, y).red() > ink.red()) ink = shown.pixelColor(x, y);
            }
        }
        return ink;
    }
};

TEST_F(MacroLooks, RecordActionIsGreyWithItsPictureAndStopRecordingRed) {
    EXPECT_TRUE(hasPicture("Record Action", "record_nr.png"));
    const QColor grey = inkOf("Record Action");
    EXPECT_NEAR(grey.red(), 0xB0, 8);
    EXPECT_NEAR(grey.red(), grey.blue(), 6);
    click("Record Action");
    EXPECT_TRUE(QTest::qWaitFor([this] {
        const QColor red = inkOf("Stop Recording");
        return red.red() > 0xF4 && red.green() < 0x98 && red.blue() < 0x90;
    })) << inkOf("Stop Recording").name().toStdString();
    EXPECT_TRUE(hasPicture("Stop Recording", "stop_nr.png"));
    EXPECT_FALSE(hasPicture("Stop Recording", "record_nr.png"));
}

TEST_F(MacroLooks, WhatAddsHasAPlus) {
    const QImage insert = pictureOf("Insert Step");
    EXPECT_TRUE(hasSymbol(insert, markRect(insert, "Insert Step", 14.0), "plus", theme::kTextButton));
    EXPECT_TRUE(hasSymbol(pictureOf("Add macro"), {6.0, 6.0, 16.0, 16.0}, "plus", theme::kTextButton));
}

TEST_F(MacroLooks, TheChosenLoopModeHasAVioletDotWithAWhiteMiddle) {
    click("Until key released");
    const auto at = [this](const QString& mode, int x) { return pictureOf(mode).pixelColor(x, 13); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return at("Until key released", 3) == theme::kAccent; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return at("Until key released", 8) == QColor(Qt::white); }));
    for (const QString mode : {"Cycle times (3)", "Until key pressed"}) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return at(mode, 8) == QColor(0x1B, 0x1B, 0x1D); })) << mode.toStdString();
    }
}

class MacroHelp : public test::MacroFixture {
protected:
    void SetUp() override { showMacros({900, 680}); }
    void TearDown() override { QToolTip::hideText(); }

    static QString helpAt(QWidget& widget, QPoint place) {
        QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
        return QToolTip::text();
    }
};

TEST_F(MacroHelp, ADelayThatIsCutIsToldInFullAndNothingElseIs) {
    std::vector<MacroEvent> steps(2);
    steps[0].delayMs = std::numeric_limits<std::int64_t>::max();
    state().macroEvents.set(steps);
    settle();
    EXPECT_EQ(helpAt(timeline(), timeline().partRect(0, StepPart::code).center()), "");
    EXPECT_EQ(helpAt(timeline(), timeline().partRect(1, StepPart::delay).center()), "");
    EXPECT_TRUE(helpAt(timeline(), timeline().partRect(0, StepPart::delay).center()).contains("9223372036854775807"));
}

TEST_F(MacroHelp, ANameThatIsCutInTheHeadingIsToldInFull) {
    TimelineHeading& heading = only<TimelineHeading>();
    EXPECT_EQ(helpAt(heading, {5, 5}), "");
    const std::string name(100, 'M');
    state().macroName.set(name);
    settle();
    EXPECT_TRUE(helpAt(heading, {5, 5}).contains(QString("TIMELINE: ") + name.c_str()));
}

class StepRowPictures : public test::LinkFixture {
protected:
    StepRowPictures() { platform.resources.directory = LUMO_ASSETS_FOLDER; }

    static constexpr QSize kSize{348, 34};

    static QImage empty() {
        QImage picture(kSize, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        return picture;
    }
    static QImage pictureOf(const MacroEvent& step) {
        StepRow row;
        row.layOut(kSize.width(), 1);
        QImage shown = empty();
        QPainter painter(&shown);
        row.paint(painter, 0, step, {});
        return shown;
    }
    /// Whether the row shows that picture there, and nothing else.
    static bool shows(const MacroEvent& step, const QRectF& frame, std::string_view name) {
        const QImage shown = pictureOf(step);
        QImage expected = empty();
        paintAsset(expected, frame, name);
        const QRect pixels = frame.toAlignedRect();
        return shown.copy(pixels) == expected.copy(pixels);
    }
    static QRectF clockOf(const MacroEvent& step) {
        StepRow row;
        row.layOut(kSize.width(), 1);
        return {row.place(StepPart::delay, step).left() - 21.0, 9.5, 15.0, 15.0};
    }

    const MacroEvent press{{}, 87, true, 25};
    const MacroEvent release{{}, 87, false, 1234};
    const QRectF icon{34.0, 8.0, 18.0, 18.0};
};

TEST_F(StepRowPictures, APressAReleaseAndTheDelayHaveThePicturesOfTheirNames) {
    EXPECT_TRUE(shows(press, icon, "other/mac_keydn.png"));
    EXPECT_TRUE(shows(release, icon, "other/mac_keyup.png"));
    EXPECT_FALSE(shows(release, icon, "other/mac_keydn.png"));
    EXPECT_TRUE(shows(press, clockOf(press), "other/time.png"));
    EXPECT_TRUE(shows(release, clockOf(release), "other/time.png"));
}

TEST_F(StepRowPictures, TheDeleteButtonHasATrash) {
    QImage expected = empty();
    QPainter painter(&expected);
    paintSymbol(painter, QRectF(325.0, 10.0, 14.0, 14.0), "trash", theme::kTextMinor);
    painter.end();
    const QRect button(320, 5, 24, 24);
    EXPECT_EQ(pictureOf(press).copy(button), expected.copy(button));
    EXPECT_NE(expected, empty());
}

}  // namespace
}  // namespace lumo
