// The window while something is not allowed.
#pragma once

#include "gui/WindowFixture.h"

namespace lumo {

class Popup;
class PermissionToast;

}  // namespace lumo

namespace lumo::test {

class PromptFixture : public WindowFixture {
protected:
    bool isLaterLaunch = false;

    void setPermissions() override {
        if (isLaterLaunch) platform.kept.values["VexaLumoHasLaunchedBefore"] = true;
    }
    /// The prompts come up a turn after the rest.
    void showFirstLaunch(QSize size = {960, 760}) {
        show(size);
        time.advance(Duration{0});
    }
    void showLaterLaunch(QSize size = {960, 760}) {
        isLaterLaunch = true;
        showFirstLaunch(size);
    }
    void activate();
    PermissionManager& permissions() { return objects.permissionManager(); }

    /// The one of that heading.
    [[nodiscard]] Popup& popup(const QString& heading) const;
    [[nodiscard]] Popup& welcome() const { return popup("Welcome to Vexa Lumo 65"); }
    [[nodiscard]] Popup& recheck() const { return popup("Permissions Setup Needed"); }
    [[nodiscard]] PermissionToast& toast() const;
    /// The headings of the popups that are to be seen.
    [[nodiscard]] std::vector<QString> popupsInSight() const;

    /// Clicks the button of that name with the mouse, and lets the turn pass.
    void click(const QString& name);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Until the prompts have come and gone as far as they do.
    void waitForFades();
    [[nodiscard]] QString focusedName() const;
    [[nodiscard]] QString widgetAt(QPoint point) const;
};

}  // namespace lumo::test
