// The tour's way through the macro page.
#pragma once

class QWidget;

namespace lumo::tour {

class Hand;
class Tour;

/// Adds the steps; hand and window outlive the tour.
void addMacroPage(Tour& tour, Hand& hand, QWidget& window);

}  // namespace lumo::tour
