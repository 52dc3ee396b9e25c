// The tour's way through the settings page.
#pragma once

class QWidget;

namespace lumo::tour {

class Hand;
class Tour;

/// Adds the steps; hand and window outlive the tour. The keys are not allowed yet when they begin.
void addSettingsPage(Tour& tour, Hand& hand, QWidget& window);

}  // namespace lumo::tour
