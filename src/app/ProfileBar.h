// The three profile buttons in the header.
#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

#include "controls/Accessible.h"

namespace lumo {

class FocusGroup;
class PushButton;

/// Main thread. As wide as its buttons need.
class ProfileBar final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static int barHeight();

    explicit ProfileBar(QWidget* parent);

    /// From 1; a number without a button selects none.
    void setSelected(std::int64_t number);

    [[nodiscard]] QSize sizeHint() const override { return {m_width, barHeight()}; }
    QAccessibleInterface* makeAccessible() override;

signals:
    void chosen(std::int64_t number);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<PushButton*> m_buttons;
    FocusGroup* m_group;
    int m_width = 0;
};

}  // namespace lumo
