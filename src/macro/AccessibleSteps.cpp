#include "macro/AccessibleSteps.h"

#include <algorithm>
#include <optional>

#include "macro/StepList.h"

namespace lumo {
namespace {

/// Where on the screen, and whether it can be seen there.
QRect onScreen(const StepList& list, const QRect& place) { return {list.mapToGlobal(place.topLeft()), place.size()}; }

QAccessible::State stateOf(const StepList& list, const QRect& place) {
    QAccessible::State state;
    state.invisible = !list.isVisible();
    state.offscreen = !list.visibleRegion().intersects(place);
    return state;
}

class StepChild : public QAccessibleInterface {
public:
    StepChild(StepList& list, std::size_t index) : m_list(list), m_index(index) {}

    /// A step that is gone leaves its description behind.
    [[nodiscard]] bool isValid() const override { return m_index < m_list.steps().size(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}

protected:
    [[nodiscard]] StepList& list() const { return m_list; }
    [[nodiscard]] std::size_t index() const { return m_index; }
    [[nodiscard]] QAccessibleInterface* listInterface() const { return QAccessible::queryAccessibleInterface(&m_list); }

private:
    StepList& m_list;
    std::size_t m_index;
};

class AccessiblePart final : public StepChild, public QAccessibleActionInterface {
public:
    AccessiblePart(StepList& list, std::size_t index, StepPart part) : StepChild(list, index), m_part(part) {}

    [[nodiscard]] QAccessibleInterface* parent() const override {
        return listInterface()->child(static_cast<int>(index()));
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid()) return {};
        return stepText(m_part, index(), list().steps()[index()]);
    }
    [[nodiscard]] QRect rect() const override {
        return isValid() ? onScreen(list(), list().partRect(index(), m_part)) : QRect();
    }
    [[nodiscard]] QAccessible::Role role() const override {
        return isButton() ? QAccessible::PushButton : QAccessible::StaticText;
    }
    [[nodiscard]] QAccessible::State state() const override;

    void* interface_cast(QAccessible::InterfaceType type) override {
        const bool isAction = isButton() && type == QAccessible::ActionInterface;
        return isAction ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& actionName) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    [[nodiscard]] bool isButton() const { return m_part == StepPart::remove; }

    StepPart m_part;
};

QAccessible::State AccessiblePart::state() const {
    QAccessible::State state = stateOf(list(), isValid() ? list().partRect(index(), m_part) : QRect());
    state.focusable = isButton();
    state.focused = isButton() && list().hasFocus() && list().currentStep() == index();
    return state;
}

void AccessiblePart::doAction(const QString& actionName) {
    if (!isValid()) return;
    if (actionName == pressAction()) return emit list().deleted(static_cast<std::int64_t>(index()));
    if (actionName != setFocusAction()) return;
    list().setCurrentStep(index());
    list().setFocus(Qt::OtherFocusReason);
}

class AccessibleStep final : public StepChild {
public:
    AccessibleStep(StepList& list, std::size_t index) : StepChild(list, index) {
        for (const StepPart part : kStepParts) {
            m_parts.at(static_cast<std::size_t>(part)) =
                QAccessible::registerAccessibleInterface(new AccessiblePart(list, index, part));
        }
    }
    AccessibleStep(const AccessibleStep&) = delete;
    AccessibleStep& operator=(const AccessibleStep&) = delete;
    ~AccessibleStep() override {
        for (const QAccessible::Id part : m_parts) QAccessible::deleteAccessibleInterface(part);
    }

    [[nodiscard]] QAccessibleInterface* parent() const override { return listInterface(); }
    [[nodiscard]] QAccessibleInterface* child(int at) const override {
        if (at < 0 || at >= childCount()) return nullptr;
        return QAccessible::accessibleInterface(m_parts.at(static_cast<std::size_t>(at)));
    }
    [[nodiscard]] int childCount() const override { return static_cast<int>(m_parts.size()); }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* wanted) const override {
        for (int i = 0; i < childCount(); ++i) {
            if (child(i) == wanted) return i;
        }
        return -1;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? QString("Step %1").arg(index() + 1) : QString();
    }
    [[nodiscard]] QRect rect() const override { return onScreen(list(), list().rowRect(index())); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override { return stateOf(list(), list().rowRect(index())); }

private:
    std::array<QAccessible::Id, kStepParts.size()> m_parts{};
};

}  // namespace

AccessibleSteps::AccessibleSteps(StepList& list) : QAccessibleWidget(&list, QAccessible::List), m_list(list) {}

AccessibleSteps::~AccessibleSteps() {
    for (const auto& [index, id] : m_steps) QAccessible::deleteAccessibleInterface(id);
}

int AccessibleSteps::childCount() const { return static_cast<int>(m_list.steps().size()); }

QAccessibleInterface* AccessibleSteps::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    auto known = m_steps.find(index);
    if (known == m_steps.end()) {
        auto* const step = new AccessibleStep(m_list, static_cast<std::size_t>(index));
        known = m_steps.emplace(index, QAccessible::registerAccessibleInterface(step)).first;
    }
    return QAccessible::accessibleInterface(known->second);
}

QAccessibleInterface* AccessibleSteps::childAt(int x, int y) const {
    const auto step = m_list.stepAt(m_list.mapFromGlobal(QPoint(x, y)));
    return step ? child(static_cast<int>(*step)) : nullptr;
}

QAccessibleInterface* AccessibleSteps::focusChild() const {
    if (!m_list.hasFocus() || m_list.steps().empty()) return nullptr;
    return child(static_cast<int>(m_list.currentStep()))->child(static_cast<int>(StepPart::remove));
}

int AccessibleSteps::indexOfChild(const QAccessibleInterface* wanted) const {
    for (const auto& [index, id] : m_steps) {
        if (QAccessible::accessibleInterface(id) == wanted) return index;
    }
    return -1;
}

std::vector<QAccessibleInterface*> AccessibleSteps::changedSince(const std::vector<MacroEvent>& before) const {
    std::vector<QAccessibleInterface*> changed;
    for (const auto& [index, id] : m_steps) {
        const auto at = static_cast<std::size_t>(index);
        if (at >= std::min(before.size(), m_list.steps().size())) break;
        for (const StepPart part : kStepParts) {
            if (stepText(part, at, before[at]) == stepText(part, at, m_list.steps()[at])) continue;
            changed.push_back(child(index)->child(static_cast<int>(part)));
        }
    }
    return changed;
}

void tellOfSteps(StepList& list, const std::vector<MacroEvent>& before) {
    if (!QAccessible::isActive()) return;
    if (before.size() != list.steps().size()) {
        QAccessibleEvent event(&list, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }
    const auto* const steps = static_cast<AccessibleSteps*>(QAccessible::queryAccessibleInterface(&list));
    for (QAccessibleInterface* const part : steps->changedSince(before)) {
        QAccessibleEvent event(part, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

void tellOfFocus(StepList& list, std::size_t index) {
    if (!QAccessible::isActive() || !list.hasFocus()) return;
    QAccessibleInterface* const steps = QAccessible::queryAccessibleInterface(&list);
    QAccessibleEvent event(steps->child(static_cast<int>(index))->child(static_cast<int>(StepPart::remove)),
                           QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

}  // namespace lumo
