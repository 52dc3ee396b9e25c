// Menus in the looks of the program's popups.
#pragma once

class QMenu;
class QWidget;

namespace lumo {

/// Main thread. An empty menu, owned by `parent`, which must not be null. A press outside closes it and does no more.
[[nodiscard]] QMenu* makePopupMenu(QWidget* parent);

}  // namespace lumo
