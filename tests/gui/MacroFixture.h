// The window with the macro page.
#pragma once

#include <QTest>

#include "controls/PushControl.h"
#include "gui/WindowFixture.h"
#include "macro/BytecodeView.h"
#include "macro/MacroEditorView.h"
#include "macro/StepList.h"

namespace lumo::test {

class MacroFixture : public WindowFixture {
protected:
    void showMacros(QSize size = {960, 760}) {
        state().currentTab.set(NavTab::macro);
        show(size);
    }
    void showMacrosActive() {
        state().currentTab.set(NavTab::macro);
        showActive();
    }

    /// The next turn of the window's loop: what was changed is laid out.
    void settle() {
        time.settle();
        QTest::qWait(0);
    }
    void click(const QString& name) {
        QTest::mouseClick(&control(name), Qt::LeftButton);
        settle();
    }

    StepList& timeline() { return only<StepList>(); }
    BytecodeView& bytecode() { return only<BytecodeView>(); }
    QPoint removeButton(std::size_t step) { return timeline().partRect(step, StepPart::remove).center(); }
    void clickRemove(std::size_t step) {
        QTest::mouseClick(&timeline(), Qt::LeftButton, {}, removeButton(step));
        settle();
    }
    /// As the window shows it.
    QRect partRect(std::size_t step, StepPart part) {
        return timeline().partRect(step, part).translated(rectOf(timeline()).topLeft());
    }

    void setSteps(std::size_t count) {
        std::vector<MacroEvent> steps;
        for (std::size_t i = 0; i < count; ++i) {
            steps.push_back({Uuid::random(), static_cast<std::uint8_t>(i % 256), i % 2 == 0, 25});
        }
        state().macroEvents.set(steps);
        settle();
    }
};

}  // namespace lumo::test
