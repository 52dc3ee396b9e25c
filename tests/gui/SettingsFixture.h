// The settings page, with everything allowed.
#pragma once

#include <QTest>
#include <functional>

#include "controls/PushControl.h"
#include "controls/Slider.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"
#include "system/PermissionRow.h"

namespace lumo::test {

class SettingsFixture : public WindowFixture {
protected:
    void showSettings(QSize size = {960, 760}) {
        state().currentTab.set(NavTab::settings);
        show(size);
    }
    void turn() { time.advance(Duration{0}); }
    void revokeBoth() {
        platform.grants.audio = AudioAuthorization::notDetermined;
        platform.grants.canListen = false;
        objects.permissionManager().checkPermissions();
        turn();
    }
    void press(const QWidget& button) {
        QTest::mouseClick(view->windowHandle(), Qt::LeftButton, {}, rectOf(button).center());
        turn();
    }
    PermissionRow& permissionRow(int index) { return *view->findChildren<PermissionRow*>().at(index); }
    /// The row's button of that name, shown or not.
    PushControl& button(PermissionRow& row, const QString& name) {
        const auto all = row.findChildren<PushControl*>();
        return **std::ranges::find(all, name, &PushControl::text);
    }
    std::vector<QString> shownTexts(const QWidget& within) {
        std::vector<QString> shown;
        for (const TextLine* const line : within.findChildren<TextLine*>()) {
            if (line->isVisible()) shown.push_back(line->text());
        }
        return shown;
    }
    Slider& sleep() { return *view->findChildren<Slider*>().at(0); }
    Slider& debounce() { return *view->findChildren<Slider*>().at(1); }
};

}  // namespace lumo::test
