// Every text that the window paints can be read where it stands, in all states: 4.5 : 1 at least.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHoverEvent>
#include <QMenu>
#include <QTest>
#include <QToolTip>
#include <algorithm>
#include <string>

#include "audio/StreamToggle.h"
#include "controls/Popup.h"
#include "gui/PromptFixture.h"
#include "gui/SteppedMotion.h"
#include "gui/TextRecorder.h"
#include "macro/BytecodeView.h"
#include "macro/StepList.h"
#include "remap/ActionGrid.h"
#include "remap/RemapCard.h"
#include "remap/RemapCategory.h"
#include "system/PermissionToast.h"

namespace lumo {
namespace {

constexpr double kLeastContrast = 4.5;
constexpr int kAllFadesMs = 400;

bool looksDifferentWhenChosen(const PushControl& control) {
    if (QAccessible::queryAccessibleInterface(const_cast<PushControl*>(&control))->role() != QAccessible::PushButton) {
        return true;
    }
    return dynamic_cast<const RemapCard*>(&control) || dynamic_cast<const StreamToggle*>(&control) ||
           dynamic_cast<const ActionGrid*>(control.parentWidget());
}

void setHovered(PushControl& control, bool isHovered) {
    QHoverEvent event(isHovered ? QEvent::HoverEnter : QEvent::HoverLeave, QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&control, &event);
}

void setPressed(PushControl& control, bool isPressed) {
    control.setDown(isPressed);
    isPressed ? emit control.pressed() : emit control.released();
}

class Contrast : public test::PromptFixture {
protected:
    test::SteppedMotion motion;

    /// As the window is now. Returns how many texts there are.
    std::size_t expectReadable(QWidget& widget, const std::string& state) {
        const test::TextRecorder recorder(widget);
        for (const test::PaintedText& text : recorder.texts()) {
            EXPECT_GE(text.contrast, kLeastContrast)
                << state << ": " << text.letters.name().toStdString() << " on " << text.surface.name().toStdString()
                << " at " << text.place.x() << ", " << text.place.y() << ", " << text.place.width() << " x "
                << text.place.height();
        }
        return recorder.texts().size();
    }

    /// With all controls at rest, below the pointer and pressed, as they are chosen now.
    void expectReadableAtAnyTouch(QWidget& widget, const std::string& state) {
        const auto inEachControl = [&widget](const auto& set) {
            for (PushControl* const control : widget.findChildren<PushControl*>()) set(*control);
        };
        expectReadable(widget, state);
        inEachControl([](PushControl& control) { setHovered(control, true); });
        motion.goOn(kAllFadesMs);
        expectReadable(widget, state + ", hovered");
        inEachControl([](PushControl& control) { setPressed(control, true); });
        motion.goOn(kAllFadesMs);
        expectReadable(widget, state + ", pressed");
        inEachControl([](PushControl& control) { setPressed(control, false); });
        inEachControl([](PushControl& control) { setHovered(control, false); });
        motion.goOn(kAllFadesMs);
    }

    void expectReadableInAllStates(QWidget& widget, const std::string& page) {
        expectReadableAtAnyTouch(widget, page);
        for (const bool isChosen : {false, true}) {
            for (PushControl* const control : widget.findChildren<PushControl*>()) {
                if (looksDifferentWhenChosen(*control)) control->setSelected(isChosen);
            }
            motion.goOn(kAllFadesMs);
            expectReadableAtAnyTouch(widget, page + (isChosen ? ", chosen" : ", not chosen"));
        }
    }

    void showPage(NavTab tab) {
        state().currentTab.set(tab);
        time.advance(Duration{0});
        motion.goOn(kAllFadesMs);
    }
};

TEST(ContrastOf, TwoColorsIsAsReadersReckonIt) {
    EXPECT_NEAR(test::contrastOf(Qt::white, Qt::black), 21.0, 0.001);
    EXPECT_NEAR(test::contrastOf(QColor(0x77, 0x77, 0x77), Qt::white), 4.478, 0.001);
    EXPECT_NEAR(test::contrastOf(QColor(0x1A, 0x1A, 0x1A), QColor(0x1A, 0x1A, 0x1A)), 1.0, 0.001);
}

TEST_F(Contrast, IsMeasuredAtEachTextOfTheWindow) {
    show();
    const test::TextRecorder recorder(*view);
    const auto inside = [&recorder](const QRect& place) {
        return std::ranges::count_if(recorder.texts(), [&](const auto& text) { return place.contains(text.place); });
    };
    for (const QString name : {"Profile 1", "Music Visualizer", "FN2", "WASD", "Raindrops", "Fill All"}) {
        EXPECT_EQ(inside(rectOf(control(name))), 1) << name.toStdString();
    }
    const auto note = std::ranges::find_if(
        recorder.texts(), [this](const auto& text) { return rectOf(control("Profile 2")).contains(text.place); });
    ASSERT_NE(note, recorder.texts().end());
    EXPECT_EQ(note->letters, QColor(0x99, 0x99, 0x99));
    EXPECT_EQ(note->surface, QColor(0x24, 0x24, 0x27));
}

class ContrastOfPage : public Contrast, public testing::WithParamInterface<NavTab> {};
INSTANTIATE_TEST_SUITE_P(Of, ContrastOfPage, testing::ValuesIn(kAllTabs));

TEST_P(ContrastOfPage, IsEnoughInAllStatesWithAndWithoutThePermissions) {
    showLaterLaunch({900, 680});
    permissions().dismissRecheckPopup();
    showPage(GetParam());
    ASSERT_TRUE(toast().isVisible());
    expectReadableInAllStates(*view, "nothing granted");
    WindowFixture::setPermissions();
    time.advance(std::chrono::seconds(2));
    showPage(GetParam());
    ASSERT_FALSE(toast().isVisible());
    expectReadableInAllStates(*view, "all granted");
}

TEST_F(Contrast, IsEnoughOnEveryPageOfKeyActions) {
    show();
    keyboard().selectPresetGroup("WASD");
    for (const RemapCategory& category : kRemapCategories) {
        state().remapCategory.set(std::string(category.key));
        showPage(NavTab::keyAssign);
        expectReadableInAllStates(*view, std::string(category.key));
    }
}

TEST_F(Contrast, IsEnoughWhileAMacroIsRecordedAndItsBytesAreSelected) {
    show();
    showPage(NavTab::macro);
    control("Insert Step").click();
    control("Recompile Bytecode").click();
    control("Record Action").click();
    time.advance(Duration{0});
    motion.goOn(kAllFadesMs);
    auto& bytes = only<BytecodeView>();
    bytes.setFocus();
    QTest::keySequence(&bytes, QKeySequence::SelectAll);
    ASSERT_FALSE(bytes.selectedText().isEmpty());
    QTest::mouseMove(&only<StepList>(), {20, 10});
    motion.goOn(kAllFadesMs);
    expectReadableAtAnyTouch(*view, "recording");
}

TEST_F(Contrast, IsEnoughInThePopupOfTheFirstLaunch) {
    showFirstLaunch();
    motion.goOn(kAllFadesMs);
    expectReadableAtAnyTouch(welcome(), "welcome");
}

TEST_F(Contrast, IsEnoughInThePopupOfALaterLaunch) {
    showLaterLaunch();
    motion.goOn(kAllFadesMs);
    expectReadableAtAnyTouch(recheck(), "recheck");
}

TEST_F(Contrast, IsEnoughInTheMenuAndInHoverHelp) {
    show();
    auto& menu = only<QMenu>();
    menu.popup({});
    menu.setActiveAction(nullptr);
    EXPECT_GT(expectReadable(menu, "menu"), 0U);
    menu.setActiveAction(&quit);
    EXPECT_GT(expectReadable(menu, "menu, hovered"), 0U);
    menu.close();
    const QPalette help = QToolTip::palette();
    EXPECT_GE(test::contrastOf(help.color(QPalette::ToolTipText), help.color(QPalette::ToolTipBase)), kLeastContrast);
}

}  // namespace
}  // namespace lumo
