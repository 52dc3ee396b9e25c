// With a larger interface font nothing is cut, nothing lies over another, and every control can be brought into view.
#include <gmock/gmock.h>

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>

#include "app/HeaderBar.h"
#include "app/NavigationBar.h"
#include "app/PageArea.h"
#include "app/StatusBar.h"
#include "controls/ColorWheel.h"
#include "controls/IconButton.h"
#include "controls/Popup.h"
#include "controls/PushControl.h"
#include "controls/ScrollBar.h"
#include "controls/Slider.h"
#include "controls/TextBlock.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"
#include "gui/PromptFixture.h"
#include "gui/TextRecorder.h"
#include "keyboard/KeyLegend.h"
#include "keyboard/KeyboardModel.h"
#include "keyboard/KeyboardView.h"
#include "keyboard/KeycapRecipe.h"
#include "remap/RemapCategory.h"
#include "system/PermissionToast.h"

namespace lumo {
namespace {

using testing::IsEmpty;

constexpr QSize kSmallestWindow{900, 680};

TEST(TextScale, IsOneForTheFontThatDesktopsUsuallyHaveAndForSmallerOnes) {
    EXPECT_EQ(theme::textScaleFor(11.0, 96.0), 1.0);
    EXPECT_EQ(theme::textScaleFor(10.0, 96.0), 1.0);
    EXPECT_EQ(theme::textScaleFor(9.0, 90.0), 1.0);
}

TEST(TextScale, FollowsALargerFontAndMoreDotsToTheInch) {
    EXPECT_DOUBLE_EQ(theme::textScaleFor(14.3, 96.0), 1.3);
    EXPECT_DOUBLE_EQ(theme::textScaleFor(11.0, 124.8), 1.3);
    EXPECT_DOUBLE_EQ(theme::textScaleFor(13.2, 120.0), 1.5);
    EXPECT_DOUBLE_EQ(theme::textScaleFor(9.0, 120.0), 1.25);
}

TEST(TextScale, GoesNoFurtherThanTwice) { EXPECT_EQ(theme::textScaleFor(40.0, 192.0), 2.0); }

class ScaledText {
protected:
    explicit ScaledText(double scale) { theme::setTextScale(scale); }
    ScaledText(const ScaledText&) = delete;
    ScaledText& operator=(const ScaledText&) = delete;
    ~ScaledText() { theme::setTextScale(1.0); }
};

class LargeText : protected ScaledText, public test::PromptFixture {
protected:
    explicit LargeText(double scale = 1.3) : ScaledText(scale) {}

    void showPage(NavTab tab) {
        state().currentTab.set(tab);
        settle();
    }
    void settle() {
        time.advance(Duration{0});
        QApplication::sendPostedEvents();
        QApplication::sendPostedEvents();
    }
    void dismissPrompts() {
        permissions().completeFirstLaunch();
        permissions().dismissToast();
        dismissPopup();
    }
    void dismissPopup() {
        permissions().dismissRecheckPopup();
        time.advance(Duration{0});
        waitForFades();
    }

    /// Texts that are told in full only by hover help. The status and the connection may.
    [[nodiscard]] std::vector<std::string> cutTexts() const {
        std::vector<std::string> cut;
        for (const TextLine* const line : view->findChildren<TextLine*>()) {
            if (line->isVisible() && line->isElided() && line != &statusLine() && line != &connectionLine()) {
                cut.push_back(line->text().toStdString());
            }
        }
        for (const TextBlock* const block : view->findChildren<TextBlock*>()) {
            if (block->isVisible() && block->isElided()) cut.push_back(block->text().toStdString());
        }
        for (PushControl* const control : view->findChildren<PushControl*>()) {
            if (control->isVisible() && !qobject_cast<IconButton*>(control) && hasHelp(*control))
                cut.push_back(control->text().toStdString());
        }
        return cut;
    }

    /// Where letters reach beyond what they are painted into, or lie on those of another text.
    [[nodiscard]] static std::vector<QRect> brokenTexts(QWidget& widget) {
        std::vector<QRect> broken;
        std::vector<QRect> before;
        const test::TextRecorder recorder(widget);
        for (const test::PaintedText& text : recorder.texts()) {
            if (isInAList(widget, text.place)) continue;
            const auto isHit = [&text](const QRect& other) { return other.intersects(text.place); };
            if (text.isCut || std::ranges::any_of(before, isHit)) broken.push_back(text.place);
            before.push_back(text.place);
        }
        return broken;
    }

    /// Siblings of which one lies over the other, and children that reach out of their parent.
    [[nodiscard]] std::vector<std::string> collisions() const {
        std::vector<std::string> found;
        for (const QWidget* const widget : view->findChildren<QWidget*>()) {
            if (!isContent(*widget)) continue;
            if (!isInsideScrollBox(*widget) && !widget->parentWidget()->rect().contains(widget->geometry())) {
                found.push_back(nameOf(*widget) + " reaches out of " + nameOf(*widget->parentWidget()));
            }
            for (const QObject* const child : widget->parentWidget()->children()) {
                const auto* const other = qobject_cast<const QWidget*>(child);
                if (!other || other <= widget || !isContent(*other)) continue;
                if (placeOf(*other).intersects(placeOf(*widget))) {
                    found.push_back(nameOf(*widget) + " and " + nameOf(*other));
                }
            }
        }
        return found;
    }

    /// Controls of which a part cannot be seen even when the page is scrolled to them.
    [[nodiscard]] std::vector<std::string> hiddenControls() const {
        std::vector<std::string> hidden;
        for (PushControl* const control : view->findChildren<PushControl*>()) {
            if (!control->isVisible() || !control->window()->isAncestorOf(control)) continue;
            ScrollBox::bringIntoView(*control, control->rect());
            if (control->visibleRegion() != QRegion(control->rect())) hidden.push_back(nameOf(*control));
        }
        for (Slider* const slider : view->findChildren<Slider*>()) {
            ScrollBox::bringIntoView(*slider, slider->rect());
            if (slider->visibleRegion() != QRegion(slider->rect())) hidden.push_back(nameOf(*slider));
        }
        return hidden;
    }

    void expectAllReadable(const std::string& what) {
        EXPECT_THAT(cutTexts(), IsEmpty()) << what;
        expectNothingBroken(what);
    }
    void expectNothingBroken(const std::string& what) {
        for (QWidget* const part :
             std::initializer_list<QWidget*>{&only<HeaderBar>(), &only<NavigationBar>(), &only<KeyboardView>(),
                                             &only<StatusBar>(), only<PageArea>().widget()}) {
            EXPECT_THAT(brokenTexts(*part), IsEmpty()) << what << ": " << nameOf(*part);
        }
        EXPECT_THAT(collisions(), IsEmpty()) << what;
        EXPECT_THAT(hiddenControls(), IsEmpty()) << what;
    }

private:
    /// That scrolls by itself: rows are cut at its edges.
    static bool isInAList(const QWidget& page, const QRect& place) {
        return std::ranges::any_of(page.findChildren<ScrollBox*>(), [&](const ScrollBox* box) {
            return box->isVisible() && QRect(box->mapTo(&page, QPoint()), box->size()).intersects(place);
        });
    }
    /// Help goes away only after a while: what stands there then is what stood there before.
    static bool hasHelp(PushControl& control) {
        const QString before = "nothing new";
        QToolTip::showText(control.mapToGlobal(QPoint(1, 1)), before, &control);
        QHelpEvent event(QEvent::ToolTip, {1, 1}, control.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&control, &event);
        return QToolTip::text() != before;
    }
    static std::string nameOf(const QWidget& widget) {
        return widget.metaObject()->className() + (" \"" + widget.accessibleName().toStdString() + "\"");
    }
    static bool isInsideScrollBox(const QWidget& widget) {
        return qobject_cast<const ScrollBox*>(widget.parentWidget()->parentWidget()) ||
               qobject_cast<const ScrollBox*>(widget.parentWidget());
    }
    /// Without the room that a wheel has around it for its marker.
    static QRect placeOf(const QWidget& widget) {
        constexpr int kRoom = ColorWheel::kRoom;
        const bool isWheel = qobject_cast<const ColorWheel*>(&widget);
        return isWheel ? widget.geometry().adjusted(kRoom, kRoom, -kRoom, -kRoom) : widget.geometry();
    }
    /// No ring, veil, shadow or popup: those lie over others by design.
    static bool isContent(const QWidget& widget) {
        return widget.isVisible() && !widget.isWindow() && !widget.testAttribute(Qt::WA_TransparentForMouseEvents) &&
               !qobject_cast<const Popup*>(&widget) && !qobject_cast<const ScrollBar*>(&widget);
    }
};

class LargeTextOn : public LargeText, public testing::WithParamInterface<NavTab> {};
INSTANTIATE_TEST_SUITE_P(Page, LargeTextOn, testing::ValuesIn(kAllTabs));

TEST_P(LargeTextOn, IsAllReadableInTheSmallestWindow) {
    showLaterLaunch(kSmallestWindow);
    dismissPrompts();
    showPage(GetParam());
    expectAllReadable("permissions missing");
    WindowFixture::setPermissions();
    time.advance(std::chrono::seconds(2));
    settle();
    expectAllReadable("permissions granted");
}

TEST_P(LargeTextOn, IsAllReadableUnderTheToast) {
    showLaterLaunch(kSmallestWindow);
    dismissPopup();
    showPage(GetParam());
    ASSERT_TRUE(toast().isVisible());
    expectAllReadable("toast");
    EXPECT_THAT(brokenTexts(toast()), IsEmpty());
}

TEST_P(LargeTextOn, IsAllReadableInTheUsualAndInALargeWindow) {
    showLaterLaunch();
    dismissPrompts();
    showPage(GetParam());
    expectAllReadable("960 x 760");
    view->resize(1360, 860);
    settle();
    expectAllReadable("1360 x 860");
}

/// Long texts are elided then, and told in full by hover help.
class LargestTextOn : public LargeText, public testing::WithParamInterface<NavTab> {
protected:
    LargestTextOn() : LargeText(2.0) {}
};
INSTANTIATE_TEST_SUITE_P(Page, LargestTextOn, testing::ValuesIn(kAllTabs));

TEST_P(LargestTextOn, LeavesEveryControlWithinReachInTheSmallestWindow) {
    showLaterLaunch(kSmallestWindow);
    dismissPrompts();
    showPage(GetParam());
    expectNothingBroken("the smallest window");
}

TEST_F(LargeText, IsAllReadableInEveryCategoryOfActions) {
    showLaterLaunch(kSmallestWindow);
    dismissPrompts();
    keyboard().selectPresetGroup("WASD");
    for (const RemapCategory& category : kRemapCategories) {
        state().remapCategory.set(std::string(category.key));
        showPage(NavTab::keyAssign);
        expectAllReadable(std::string(category.key));
    }
}

TEST_F(LargeText, IsAllReadableWithAMacroThatIsRecordedAndCompiled) {
    showLaterLaunch(kSmallestWindow);
    dismissPrompts();
    showPage(NavTab::macro);
    control("Recompile Bytecode").click();
    control("Record Action").click();
    settle();
    expectAllReadable("recording");
}

TEST_F(LargeText, IsAllReadableInThePopups) {
    showFirstLaunch(kSmallestWindow);
    waitForFades();
    EXPECT_THAT(brokenTexts(welcome()), IsEmpty());
    EXPECT_THAT(cutTexts(), IsEmpty());
}

TEST_F(LargeText, LeavesTheKeyboardAsItIs) {
    const KeyCap& escape = keyboard().keys.get().front();
    const QRectF face = faceOf(lumo::rectOf(escape));
    const QRectF large = legendOf(escape, face).main.boundingRect();
    theme::setTextScale(1.0);
    EXPECT_EQ(legendOf(escape, face).main.boundingRect(), large);
    EXPECT_GT(large.width(), 0.0);
}

}  // namespace
}  // namespace lumo
