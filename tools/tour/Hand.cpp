#include "Hand.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>
#include <cstdio>
#include <functional>

#include "controls/ScrollBox.h"

namespace lumo::tour {
namespace {

constexpr int kDragSteps = 12;

/// The first shown element for which `isWanted` says yes; null when there is none.
QAccessibleInterface* find(QAccessibleInterface* element, const std::function<bool(QAccessibleInterface&)>& isWanted) {
    if (!element || element->state().invisible) return nullptr;
    if (isWanted(*element)) return element;
    for (int i = 0; i < element->childCount(); ++i) {
        if (QAccessibleInterface* const found = find(element->child(i), isWanted)) return found;
    }
    return nullptr;
}

bool isText(const QAccessibleInterface& element) { return element.role() == QAccessible::StaticText; }

QString nameOf(const QAccessibleInterface& element) { return element.text(QAccessible::Name); }

/// As a user scrolls to what does not show.
void bringIntoView(const QAccessibleInterface& element) {
    if (const auto* const widget = qobject_cast<const QWidget*>(element.object())) {
        ScrollBox::bringIntoView(*widget, widget->rect());
    }
}

}  // namespace

QRect Hand::place(const QString& name) const {
    // A control goes before the text that names it.
    const auto hasName = [&name](QAccessibleInterface& element) { return !isText(element) && nameOf(element) == name; };
    const QAccessibleInterface* const found = find(QAccessible::queryAccessibleInterface(&m_window), hasName);
    if (!found) {
        std::fprintf(stderr, "The tour finds nothing named \"%s\".\n", qUtf8Printable(name));
        std::exit(EXIT_FAILURE);
    }
    bringIntoView(*found);
    return found->rect().translated(-m_window.mapToGlobal(QPoint()));
}

void Hand::moveTo(const QString& name) { QTest::mouseMove(m_window.windowHandle(), place(name).center()); }

void Hand::click(const QString& name) {
    moveTo(name);
    QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, place(name).center());
}

void Hand::drag(const QString& name, QPoint from, QPoint by) {
    QWindow* const window = m_window.windowHandle();
    const QPoint begin = place(name).topLeft() + from;
    QTest::mouseMove(window, begin);
    QTest::mousePress(window, Qt::LeftButton, {}, begin);
    for (int step = 1; step <= kDragSteps; ++step) QTest::mouseMove(window, begin + by * step / kDragSteps);
    QTest::mouseRelease(window, Qt::LeftButton, {}, begin + by);
}

void Hand::key(int key) { QTest::keyClick(m_window.windowHandle(), static_cast<Qt::Key>(key)); }

QStringList Hand::texts() const {
    QStringList texts;
    find(QAccessible::queryAccessibleInterface(&m_window), [&texts](QAccessibleInterface& element) {
        if (isText(element)) texts += nameOf(element);
        return false;
    });
    return texts;
}

int Hand::count(const QString& name) const {
    int found = 0;
    find(QAccessible::queryAccessibleInterface(&m_window), [&](QAccessibleInterface& element) {
        if (!isText(element) && nameOf(element) == name) ++found;
        return false;
    });
    return found;
}

QString Hand::focused() const {
    const QWidget* const focused = QApplication::focusWidget();
    return focused ? focused->accessibleName() : QString();
}

}  // namespace lumo::tour
