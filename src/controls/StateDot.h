// A small disc, green where something is granted and orange where it is not.
#pragma once

#include <QWidget>

#include "controls/Accessible.h"

namespace lumo {

/// Main thread. Fills its widget; says its state in words to assistive technology.
class StateDot final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    explicit StateDot(QWidget* parent);

    void setGranted(bool isGranted);
    [[nodiscard]] bool isGranted() const { return m_isGranted; }

    QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void nameState();

    bool m_isGranted = false;
};

}  // namespace lumo
