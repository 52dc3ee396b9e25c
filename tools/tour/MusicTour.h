// The tour's way through the music page.
#pragma once

class QWidget;

namespace lumo::tour {

class Hand;
class Tour;

/// Adds the steps; hand and window outlive the tour. The microphone is not allowed yet when they begin.
void addMusicPage(Tour& tour, Hand& hand, QWidget& window);

}  // namespace lumo::tour
