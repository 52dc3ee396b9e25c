// The program's one-item menu behind the hexagon.
#include <gmock/gmock.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "app/BrandButton.h"
#include "app/HeaderBar.h"
#include "controls/TextLine.h"
#include "gui/AccessibleTree.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

class Menu : public test::WindowFixture {
protected:
    void SetUp() override { showActive(); }
    void TearDown() override { menu().close(); }

    QMenu& menu() { return only<QMenu>(); }
    static void askForMenu(QWidget& widget, QPoint at) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget.mapToGlobal(at));
        QApplication::sendEvent(&widget, &event);
    }
};

TEST_F(Menu, HoldsNothingButTheGivenItem) {
    EXPECT_THAT(menu().actions(), testing::ElementsAre(&quit));
    EXPECT_FALSE(menu().isVisible());
}

TEST_F(Menu, OpensBelowTheHexagonOnAClick) {
    QTest::mouseClick(&only<BrandButton>(), Qt::LeftButton);
    EXPECT_TRUE(menu().isVisible());
    EXPECT_GE(menu().y(), view->mapToGlobal(QPoint(0, 32)).y());
}

class MenuKey : public Menu, public testing::WithParamInterface<Qt::Key> {};

TEST_P(MenuKey, OpensTheMenuFromTheHexagon) {
    only<BrandButton>().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&only<BrandButton>(), GetParam());
    EXPECT_TRUE(menu().isVisible());
    EXPECT_EQ(menu().activeAction(), &quit);
}

INSTANTIATE_TEST_SUITE_P(All, MenuKey, testing::Values(Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down));

TEST_F(Menu, ItsItemTriggersTheGivenAction) {
    const QSignalSpy triggered(&quit, &QAction::triggered);
    QTest::mouseClick(&only<BrandButton>(), Qt::LeftButton);
    QTest::mouseClick(&menu(), Qt::LeftButton, {}, menu().actionGeometry(&quit).center());
    EXPECT_EQ(triggered.count(), 1);
    EXPECT_FALSE(menu().isVisible());
}

TEST_F(Menu, ItsItemIsAnActionForAssistiveTechnology) {
    const QSignalSpy triggered(&quit, &QAction::triggered);
    QAccessibleInterface* const item = test::accessible(*view, QAccessible::MenuItem, "Quit Vexa Lumo 65");
    ASSERT_NE(item, nullptr);
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(triggered.count(), 1);
}

TEST_F(Menu, OpensOnARightClickOnTheEmptyHeader) {
    askForMenu(only<HeaderBar>(), QPoint(480, 20));
    EXPECT_TRUE(menu().isVisible());
}

TEST_F(Menu, OpensOnARightClickOnTheHeadersTexts) {
    askForMenu(connectionLine(), QPoint(3, 3));
    EXPECT_TRUE(menu().isVisible());
}

TEST_F(Menu, DoesNotOpenOnARightClickElsewhere) {
    askForMenu(row("Raindrops"), QPoint(3, 3));
    askForMenu(*view, QPoint(400, 200));
    askForMenu(statusLine(), QPoint(3, 3));
    EXPECT_FALSE(menu().isVisible());
}

class PageMenu : public Menu, public testing::WithParamInterface<NavTab> {};

TEST_P(PageMenu, NothingOnThePageHasOneOfItsOwn) {
    view->resize(900, 680);
    state().currentTab.set(GetParam());
    time.advance(Duration{0});
    // A menu that comes runs a loop of its own; this ends it.
    QStringList opened;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&opened] {
        QWidget* const popup = QApplication::activePopupWidget();
        if (!popup) return;
        opened.append(popup->metaObject()->className());
        popup->close();
    });
    look.start(0);
    for (QWidget* const widget : view->findChildren<QWidget*>()) {
        if (!widget->isVisible() || menu().isAncestorOf(widget)) continue;
        if (only<HeaderBar>().isAncestorOf(widget) || widget == &only<HeaderBar>()) continue;
        askForMenu(*widget, widget->rect().center());
    }
    QTest::qWait(0);
    EXPECT_THAT(opened, testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, PageMenu, testing::ValuesIn(kAllTabs));

class WithoutMenu : public test::LinkFixture {};

TEST_F(WithoutMenu, TheHexagonIsAPictureOnly) {
    MainView view(nullptr);
    view.resize(960, 760);
    EXPECT_TRUE(view.findChildren<BrandButton*>().isEmpty());
    EXPECT_TRUE(view.findChildren<QMenu*>().isEmpty());
    EXPECT_TRUE(test::accessibles(view, QAccessible::ButtonMenu).empty());
#ifndef Q_OS_MACOS
    EXPECT_EQ(view.grab().toImage().pixelColor(26, 22), QColor(87, 8, 212));
#endif
}

}  // namespace
}  // namespace lumo
