#include "controls/PopupMenu.h"

#include <QMenu>

#include "controls/Theme.h"

namespace lumo {
namespace {

QString rgba(const QColor& color) {
    return QString("rgba(%1, %2, %3, %4)").arg(color.red()).arg(color.green()).arg(color.blue()).arg(color.alpha());
}

QString looks() {
    return QString(
               "QMenu { background: %1; border: 1px solid %2; padding: 4px; }"
               "QMenu::item { color: %3; padding: 6px 12px; border-radius: %5px; }"
               "QMenu::item:selected { background: %4; }")
        .arg(rgba(theme::kPopup), rgba(theme::kPopupLine), rgba(theme::kText), rgba(theme::kPopupControl))
        .arg(theme::kSmallRadius);
}

}  // namespace

QMenu* makePopupMenu(QWidget* parent) {
    auto* const menu = new QMenu(parent);
    menu->setFont(theme::font(theme::kMenuStyle));
    menu->setStyleSheet(looks());
    // Otherwise the press that closes the menu would also reach the button below and open it again.
    menu->setAttribute(Qt::WA_NoMouseReplay);
    return menu;
}

}  // namespace lumo
