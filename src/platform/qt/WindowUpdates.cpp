#include "platform/qt/WindowUpdates.h"

#include <QEvent>
#include <QWindow>
#include <utility>

namespace lumo {

WindowUpdates& WindowUpdates::of(QWindow& window) {
    auto* const known = window.findChild<WindowUpdates*>(QString(), Qt::FindDirectChildrenOnly);
    return known ? *known : *new WindowUpdates(window);
}

WindowUpdates::WindowUpdates(QWindow& window) : QObject(&window), m_window(window) { window.installEventFilter(this); }

void WindowUpdates::request() {
    m_isRequested = true;
    m_window
        .requestUpdate();  // asked even if one should be on its way: Qt knows, and forgets it with the native window
}

bool WindowUpdates::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::UpdateRequest || !std::exchange(m_isRequested, false)) return false;
    emit granted();
    return true;
}

}  // namespace lumo
