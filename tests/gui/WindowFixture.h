// The window's content over the in-process keyboard, found by what it shows.
#pragma once

#include <QAction>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "app/MainView.h"
#include "support/LinkFixture.h"

namespace lumo {

class EffectRow;
class PushControl;
class TextLine;

}  // namespace lumo

namespace lumo::test {

class WindowFixture : public LinkFixture {
protected:
    QAction quit{"Quit Vexa Lumo 65"};
    std::unique_ptr<MainView> view;

    /// What the user has allowed, and whether the program was launched before, as the window comes up. Everything, and
    /// no prompt is left to be seen; a test of the prompts says otherwise.
    virtual void setPermissions();

    /// Makes the view, shows it as a window and waits until it is on the screen.
    void show(QSize size = {960, 760});

    /// Also waits until it has the keyboard.
    void showActive();

    /// Lets another window have the keyboard while something happens, and takes it back.
    void leaveFor(const std::function<void()>& something);

    /// In the order of the list.
    [[nodiscard]] std::vector<EffectRow*> rows() const;
    [[nodiscard]] EffectRow& row(const QString& name) const;
    [[nodiscard]] std::vector<QString> selectedNames() const;

    /// The button of that text.
    [[nodiscard]] PushControl& control(const QString& name) const;

    template <typename Widget>
    [[nodiscard]] Widget& only() const {
        const auto found = view->findChildren<Widget*>();
        EXPECT_EQ(found.size(), 1);
        return *found.front();
    }
    [[nodiscard]] TextLine& statusLine() const;
    [[nodiscard]] TextLine& connectionLine() const;

    /// In the window's coordinates.
    [[nodiscard]] QRect rectOf(const QWidget& widget) const {
        return {widget.mapTo(view.get(), QPoint()), widget.size()};
    }
};

}  // namespace lumo::test
