// The popup of a later launch to which a permission is missing.
#pragma once

class QWidget;

namespace lumo {

class PermissionManager;
class Popup;
class UIState;

/// Main thread. A child of `parent`, hidden at first. The objects outlive it.
[[nodiscard]] Popup* makeRecheckPopup(PermissionManager& permissions, UIState& state, QWidget* parent);

}  // namespace lumo
