#include "gui/AccessibleTree.h"

namespace lumo::test {
namespace {

void addWithChildren(QAccessibleInterface* element, std::vector<QAccessibleInterface*>& elements) {
    if (!element) return;
    elements.push_back(element);
    for (int i = 0; i < element->childCount(); ++i) addWithChildren(element->child(i), elements);
}

}  // namespace

std::vector<QAccessibleInterface*> accessibleTree(QObject& root) {
    std::vector<QAccessibleInterface*> elements;
    addWithChildren(QAccessible::queryAccessibleInterface(&root), elements);
    return elements;
}

std::vector<QAccessibleInterface*> accessibles(QObject& root, QAccessible::Role role) {
    std::vector<QAccessibleInterface*> elements = accessibleTree(root);
    std::erase_if(elements, [role](const QAccessibleInterface* element) { return element->role() != role; });
    return elements;
}

QAccessibleInterface* accessible(QObject& root, QAccessible::Role role, const QString& name) {
    std::vector<QAccessibleInterface*> elements = accessibles(root, role);
    std::erase_if(elements, [&name](const QAccessibleInterface* element) { return nameOf(*element) != name; });
    return elements.size() == 1 ? elements.front() : nullptr;
}

}  // namespace lumo::test
