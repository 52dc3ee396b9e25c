// Controls in equal columns, each of which binds one action.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "controls/FocusGroup.h"
#include "remap/Binding.h"

namespace lumo {

class PushControl;

/// Main thread. Filled row by row; the rows share the height.
class ActionGrid final : public QWidget {
    Q_OBJECT

public:
    ActionGrid(int across, int gap, QWidget* parent);

    /// The control is a child of this grid.
    void add(PushControl& control, Binding binding);
    /// Marks the action of that code.
    void setBound(const std::optional<std::vector<std::uint8_t>>& code);
    /// Fewer stand side by side where their names would not find room.
    [[nodiscard]] int rowsWithin(int width) const;

signals:
    void chosen(const lumo::Binding& binding);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int acrossWithin(int width) const;

    struct Action {
        PushControl* control = nullptr;
        Binding binding;
    };

    int m_across;
    int m_gap;
    FocusGroup* m_group;
    std::vector<Action> m_actions;
};

}  // namespace lumo
