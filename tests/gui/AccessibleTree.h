// What assistive technology finds in a window.
#pragma once

#include <QAccessible>
#include <QString>
#include <vector>

class QObject;

namespace lumo::test {

/// Every element below and including the object's own, in reading order.
[[nodiscard]] std::vector<QAccessibleInterface*> accessibleTree(QObject& root);

/// All elements of that role.
[[nodiscard]] std::vector<QAccessibleInterface*> accessibles(QObject& root, QAccessible::Role role);

/// The one element of that role and name; null when there is none or more than one.
[[nodiscard]] QAccessibleInterface* accessible(QObject& root, QAccessible::Role role, const QString& name);

[[nodiscard]] inline QString nameOf(const QAccessibleInterface& element) { return element.text(QAccessible::Name); }

}  // namespace lumo::test
