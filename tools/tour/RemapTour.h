// The tour's way through the remap page.
#pragma once

class QWidget;

namespace lumo::tour {

class Hand;
class Tour;

/// Adds the steps; hand and window outlive the tour.
void addRemapPage(Tour& tour, Hand& hand, QWidget& window);

}  // namespace lumo::tour
