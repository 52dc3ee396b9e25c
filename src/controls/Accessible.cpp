#include "controls/Accessible.h"

namespace lumo {
namespace {

QAccessibleInterface* describe(const QString&, QObject* object) {
    auto* const source = dynamic_cast<AccessibleSource*>(object);
    return source ? source->makeAccessible() : nullptr;
}

}  // namespace

AccessibleSource::AccessibleSource() {
    // With the first of our widgets: Qt keeps the first description it gets of each, the wrong one, too.
    [[maybe_unused]] static const bool kIsInstalled = (QAccessible::installFactory(describe), true);
}

QStringList AccessibleButton::actionNames() const {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void AccessibleButton::doAction(const QString& actionName) {
    if (actionName == pressAction()) return static_cast<QAbstractButton*>(widget())->click();
    QAccessibleWidget::doAction(actionName);
}

QStringList AccessibleButton::keyBindingsForAction(const QString& actionName) const {
    if (actionName != pressAction()) return QAccessibleWidget::keyBindingsForAction(actionName);
    return {QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText)};
}

QVector<std::pair<QAccessibleInterface*, QAccessible::Relation>> AccessibleGroup::relations(
    QAccessible::Relation match) const {
    auto found = QAccessibleWidget::relations(match);
    if (match & QAccessible::Label) {
        found.append({QAccessible::queryAccessibleInterface(&m_heading), QAccessible::Label});
    }
    return found;
}

void announce([[maybe_unused]] QWidget& source, [[maybe_unused]] const QString& text) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&source, text);
    QAccessible::updateAccessibility(&event);
#endif
}

}  // namespace lumo
