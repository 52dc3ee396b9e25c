#include "gui/PromptFixture.h"

#include <QTest>
#include <stdexcept>

#include "controls/Popup.h"
#include "controls/PushControl.h"
#include "system/PermissionToast.h"

namespace lumo::test {

Popup& PromptFixture::popup(const QString& heading) const {
    for (Popup* const each : view->findChildren<Popup*>()) {
        if (each->accessibleName() == heading) return *each;
    }
    throw std::invalid_argument("no popup " + heading.toStdString());
}

std::vector<QString> PromptFixture::popupsInSight() const {
    std::vector<QString> headings;
    for (const Popup* const each : view->findChildren<Popup*>()) {
        if (each->isVisible()) headings.push_back(each->accessibleName());
    }
    return headings;
}

PermissionToast& PromptFixture::toast() const { return only<PermissionToast>(); }

void PromptFixture::activate() {
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
}

void PromptFixture::click(const QString& name) {
    QTest::mouseClick(view->windowHandle(), Qt::LeftButton, {}, rectOf(control(name)).center());
    time.advance(Duration{0});
}

void PromptFixture::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(view->windowHandle(), key, modifiers);
    time.advance(Duration{0});
}

void PromptFixture::waitForFades() {
    const auto isResting = [this] {
        for (const Popup* const each : view->findChildren<Popup*>()) {
            if (!each->isResting()) return false;
        }
        return toast().isResting();
    };
    ASSERT_TRUE(QTest::qWaitFor(isResting));
}

QString PromptFixture::focusedName() const {
    const QWidget* const focused = view->window()->focusWidget();
    return focused ? focused->accessibleName() : QString();
}

QString PromptFixture::widgetAt(QPoint point) const {
    const QWidget* const widget = view->childAt(point);
    return widget ? widget->accessibleName() : QString();
}

}  // namespace lumo::test
