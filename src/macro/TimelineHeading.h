// The timeline's heading, which names the macro being edited.
#pragma once

#include <QWidget>
#include <string_view>

#include "controls/Accessible.h"
#include "controls/Lettering.h"

namespace lumo {

/// Main thread. One text, its end in another style; that end is elided where it does not fit, and then told as hover
/// help. A press on it goes to what lies behind.
class TimelineHeading final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    explicit TimelineHeading(QWidget* parent);

    void setMacroName(std::string_view name);

    QAccessibleInterface* makeAccessible() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] double nameX() const;
    [[nodiscard]] QString shownName() const;

    Lettering m_headingLettering;
    Lettering m_nameLettering;
    QString m_name;
};

}  // namespace lumo
