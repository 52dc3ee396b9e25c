// The byte code as text: selected, copied, coloured.
#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>

#include "gui/EventCount.h"
#include "gui/MacroFixture.h"

namespace lumo {
namespace {

constexpr auto kText =
    "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 00 00\n"
    "10: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "20: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "30: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "40: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "50: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "60: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "70: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";

class Bytecode : public test::MacroFixture {
protected:
    void SetUp() override {
        showMacrosActive();
        click("Recompile Bytecode");
        QApplication::clipboard()->clear();
    }

    /// Between two letters: before that one, in the middle of its line's height.
    QPoint place(int line, int column) {
        const double letter = Lettering(theme::kHexStyle).widthOf("0");
        const double left = (bytecode().width() - 51 * letter) / 2.0;
        const int top = (bytecode().height() - 8 * 17) / 2;
        return {qRound(left + column * letter), top + line * 17 + 8};
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(&bytecode(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&bytecode(), to);
        QTest::mouseRelease(&bytecode(), Qt::LeftButton, {}, to);
    }
    void key(const QKeySequence& sequence) { QTest::keySequence(&bytecode(), sequence); }
    static QString copied() { return QApplication::clipboard()->text(); }
    /// The brightest letter pixel of that cell.
    QColor inkOf(int line, int column, int width = 12) {
        const QImage picture = bytecode().grab(QRect(place(line, column) - QPoint(0, 8), QSize(width, 17))).toImage();
        QColor brightest = Qt::black;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y).lightness() > brightest.lightness()) brightest = picture.pixelColor(x, y);
            }
        }
        return brightest;
    }
};

TEST_F(Bytecode, AllOfItCanBeCopiedExactlyAsItIs) {
    bytecode().setFocus(Qt::TabFocusReason);
    key(QKeySequence::SelectAll);
    key(QKeySequence::Copy);
    EXPECT_EQ(copied(), kText);
}

TEST_F(Bytecode, ADragSelectsWhatLiesBetween) {
    drag(place(0, 7), place(0, 18));
    EXPECT_EQ(bytecode().selectedText(), "01 99 57 19");
    key(QKeySequence::Copy);
    EXPECT_EQ(copied(), "01 99 57 19");
}

TEST_F(Bytecode, ADragOverTheEndOfALineTakesTheLineBreakAlong) {
    drag(place(1, 3), place(0, 48));
    EXPECT_EQ(bytecode().selectedText(), " 00\n10:");
    drag(place(0, 48), {5, 5});
    EXPECT_EQ(bytecode().selectedText(), QString(kText).left(48));
    drag(place(7, 0), {bytecode().width(), bytecode().height() + 50});
    EXPECT_EQ(bytecode().selectedText(), QString(kText).right(51));
}

TEST_F(Bytecode, ADoubleClickSelectsOneByte) {
    QTest::mouseDClick(&bytecode(), Qt::LeftButton, {}, place(0, 11));
    EXPECT_EQ(bytecode().selectedText(), "99");
}

TEST_F(Bytecode, ShiftExtendsTheSelection) {
    QTest::mouseClick(&bytecode(), Qt::LeftButton, {}, place(0, 4));
    QTest::mouseClick(&bytecode(), Qt::LeftButton, Qt::ShiftModifier, place(0, 9));
    EXPECT_EQ(bytecode().selectedText(), "00 01");
    QTest::keyClick(&bytecode(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(bytecode().selectedText(), "00 01 ");
    QTest::keyClick(&bytecode(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(bytecode().selectedText().size(), 6 + 52);
    QTest::keyClick(&bytecode(), Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&bytecode(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(bytecode().selectedText(), "00 01");
    for (int i = 0; i < 9; ++i) QTest::keyClick(&bytecode(), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(bytecode().selectedText(), "00: ");
}

TEST_F(Bytecode, NothingSelectedCopiesNothing) {
    QApplication::clipboard()->setText("before");
    bytecode().setFocus(Qt::TabFocusReason);
    key(QKeySequence::Copy);
    EXPECT_EQ(copied(), "before");
}

TEST_F(Bytecode, AnotherTextTakesTheSelectionAway) {
    drag(place(0, 4), place(0, 9));
    click("Recompile Bytecode");
    EXPECT_EQ(bytecode().selectedText(), "00 01");  // it is the same text
    click("Insert Step");
    EXPECT_EQ(bytecode().selectedText(), "");
}

TEST_F(Bytecode, ItCannotBeEdited) {
    bytecode().setFocus(Qt::TabFocusReason);
    key(QKeySequence::SelectAll);
    QTest::keyClicks(&bytecode(), "AB");
    QTest::keyClick(&bytecode(), Qt::Key_Delete);
    EXPECT_EQ(bytecode().accessibleName(), kText);
}

TEST_F(Bytecode, BytesThatSaySomethingArePaleVioletAndTheOthersGrey) {
    const QColor said = inkOf(0, 10);  // 99
    EXPECT_GT(said.blue() - said.green(), 25);
    for (const QColor& ink : {inkOf(0, 0), inkOf(0, 4), inkOf(3, 10)}) {
        EXPECT_LT(ink.blue() - ink.green(), 12) << ink.name().toStdString();
        EXPECT_LT(ink.lightness(), 0x90);
    }
}

TEST_F(Bytecode, WhatIsSelectedLiesOnTheAccent) {
    bytecode().setFocus(Qt::TabFocusReason);
    key(QKeySequence::SelectAll);
    const QImage picture = bytecode().grab().toImage();
    EXPECT_EQ(picture.pixelColor(place(2, 25) - QPoint(0, 7)), theme::kAccent);
}

TEST_F(Bytecode, OnlyTheLettersThatAreSelectedAreWhite) {
    drag(place(0, 11), place(0, 14));  // of "99 57": the second 9, the space, the 5
    ASSERT_EQ(bytecode().selectedText(), "9 5");
    const auto white = [this](int column) { return inkOf(0, column, 5).green() > 0xE4; };
    EXPECT_FALSE(white(10));
    EXPECT_TRUE(white(11));
    EXPECT_TRUE(white(13));
    EXPECT_FALSE(white(14));
}

TEST_F(Bytecode, AnEmptyTextIsNoStopForTab) {
    state().compiledMacroHex.set("");
    settle();
    EXPECT_EQ(bytecode().focusPolicy(), Qt::NoFocus);
    QTest::mouseClick(&bytecode(), Qt::LeftButton, {}, {50, 50});
    EXPECT_EQ(bytecode().selectedText(), "");
    drag({50, 50}, {90, 60});
    EXPECT_EQ(bytecode().selectedText(), "");
}

/// Nothing was ever compiled.
class EmptyBytecode : public test::MacroFixture {};

TEST_F(EmptyBytecode, ADragOverItSelectsNothingAndPaintsNothing) {
    showMacros();
    QTest::qWait(0);
    const test::EventCount paints(bytecode(), QEvent::Paint);
    QTest::mousePress(&bytecode(), Qt::LeftButton, {}, {50, 50});
    QTest::mouseMove(&bytecode(), {90, 60});
    QTest::mouseRelease(&bytecode(), Qt::LeftButton, {}, {90, 60});
    QTest::qWait(50);
    EXPECT_EQ(bytecode().selectedText(), "");
    EXPECT_EQ(paints.count(), 0);
}

}  // namespace
}  // namespace lumo
