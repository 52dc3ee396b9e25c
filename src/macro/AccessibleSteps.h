// The timeline as assistive technology sees it: a list of steps, each with its texts and its button.
#pragma once

#include <QAccessibleWidget>
#include <cstddef>
#include <map>
#include <vector>

#include "macro/MacroEvent.h"

namespace lumo {

class StepList;

/// Main thread; goes with the list. A step is described once somebody asks for it.
class AccessibleSteps final : public QAccessibleWidget {
public:
    explicit AccessibleSteps(StepList& list);
    AccessibleSteps(const AccessibleSteps&) = delete;
    AccessibleSteps& operator=(const AccessibleSteps&) = delete;
    ~AccessibleSteps() override;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* wanted) const override;

    /// The parts that read otherwise than before, of the steps that somebody has asked for.
    [[nodiscard]] std::vector<QAccessibleInterface*> changedSince(const std::vector<MacroEvent>& before) const;

private:
    StepList& m_list;
    mutable std::map<int, QAccessible::Id> m_steps;
};

/// There are other steps than before.
void tellOfSteps(StepList& list, const std::vector<MacroEvent>& before);
/// The keyboard works on that step's button.
void tellOfFocus(StepList& list, std::size_t index);

}  // namespace lumo
