// How our own controls tell assistive technology what they are.
#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace lumo {

/// A widget that describes itself. Main thread.
class AccessibleSource {
public:
    AccessibleSource();
    AccessibleSource(const AccessibleSource&) = delete;
    AccessibleSource& operator=(const AccessibleSource&) = delete;
    virtual ~AccessibleSource() = default;

    /// A new description, which Qt owns and drops with the widget.
    [[nodiscard]] virtual QAccessibleInterface* makeAccessible() = 0;
};

/// A button of ours: can be pressed and takes the focus.
class AccessibleButton : public QAccessibleWidget {
public:
    AccessibleButton(QAbstractButton& button, QAccessible::Role role) : QAccessibleWidget(&button, role) {}

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& actionName) const override;
};

/// A group that one of its children labels: its heading.
class AccessibleGroup final : public QAccessibleWidget {
public:
    AccessibleGroup(QWidget& group, QWidget& heading)
        : QAccessibleWidget(&group, QAccessible::Grouping), m_heading(heading) {}

    [[nodiscard]] QVector<std::pair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override;

private:
    QWidget& m_heading;
};

/// Speaks the text where the system can speak what does not have the focus. Main thread.
void announce(QWidget& source, const QString& text);

}  // namespace lumo
