// The welcome of the very first launch.
#pragma once

class QWidget;

namespace lumo {

class PermissionManager;
class Popup;
class UIState;

/// Main thread. A child of `parent`, hidden at first. The objects outlive it.
[[nodiscard]] Popup* makeWelcomePopup(PermissionManager& permissions, UIState& state, QWidget* parent);

}  // namespace lumo
