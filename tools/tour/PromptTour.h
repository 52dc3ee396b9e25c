// The stations of the tour about permissions.
#pragma once

class QWidget;

namespace lumo::tour {

class Hand;
class Tour;

/// The welcome of the first launch; goes on to where the window is free.
void addWelcome(Tour& tour, Hand& hand);

/// Popup and toast of a later launch.
void addLaterLaunch(Tour& tour, Hand& hand, QWidget& window);

}  // namespace lumo::tour
