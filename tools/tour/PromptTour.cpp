#include "PromptTour.h"

#include <QWidget>

#include "Hand.h"
#include "Tour.h"

namespace lumo::tour {
namespace {

constexpr auto kWelcome = "Welcome to Vexa Lumo 65";
constexpr auto kRecheck = "Permissions Setup Needed";

}  // namespace

void addWelcome(Tour& tour, Hand& hand) {
    tour.then(
        "the welcome comes up", [] {}, [&hand] { return hand.reads(kWelcome); });
    tour.picture("00-welcome.png");
    tour.then(
        "permissions are granted", [&hand] { hand.click("Grant Permissions"); },
        [&hand] { return !hand.reads(kWelcome); });
    tour.then(
        "the system has asked and heard", [] {}, [&hand] { return hand.count("Granted") == 2; });
}

void addLaterLaunch(Tour& tour, Hand& hand, QWidget& window) {
    tour.then(
        "popup and toast come up", [] {},
        [&hand] { return hand.reads(kRecheck) && hand.reads("Connected & Authenticated"); });
    tour.picture("09-recheck.png");
    tour.then(
        "the popup is dismissed", [&hand] { hand.click("Dismiss to Settings"); },
        [&hand] { return !hand.reads(kRecheck) && hand.reads("DEVICE SPECIFICATIONS"); });
    tour.picture("09-toast-on-settings.png");
    tour.then(
        "back to the lighting page", [&hand] { hand.click("Lighting Effect"); },
        [&hand] { return hand.reads("LIGHTING EFFECT"); });
    tour.picture("10-toast.png");
    tour.then(
        "the smallest window", [&window] { window.resize(900, 680); },
        [&window] { return window.size() == QSize(900, 680); });
    tour.picture("11-toast-smallest.png");
    tour.then(
        "the toast is closed", [&hand] { hand.click("Dismiss notification"); },
        [&hand] { return hand.count("Dismiss notification") == 0; });
}

}  // namespace lumo::tour
