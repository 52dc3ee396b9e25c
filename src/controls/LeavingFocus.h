// The focus of what is about to be hidden.
#pragma once

class QWidget;

namespace lumo {

/// Leaves the focus to the parent where `leaving` or something in it has the focus: Qt would hand it on as the Tab key
/// does, and a ring would come up. Main thread.
void letGoOfFocus(QWidget& leaving);

}  // namespace lumo
