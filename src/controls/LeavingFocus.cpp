#include "controls/LeavingFocus.h"

#include <QWidget>

namespace lumo {

void letGoOfFocus(QWidget& leaving) {
    const QWidget* const focused = leaving.window()->focusWidget();
    if (focused == &leaving || leaving.isAncestorOf(focused)) leaving.parentWidget()->setFocus(Qt::OtherFocusReason);
}

}  // namespace lumo
