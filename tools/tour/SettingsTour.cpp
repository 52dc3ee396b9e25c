#include "SettingsTour.h"

#include <QWidget>

#include "Hand.h"
#include "Tour.h"

namespace lumo::tour {

void addSettingsPage(Tour& tour, Hand& hand, QWidget& window) {
    tour.then(
        "the settings page", [&hand] { hand.click("Device Settings"); },
        [&hand] { return hand.reads("DEVICE SPECIFICATIONS"); });
    tour.picture("50-settings.png");
    tour.then(
        "the debounce is set",
        [&hand] {
            hand.drag("Switch Debounce Time", {40, 10}, {50, 0});
        },
        [&hand] { return hand.reads("10 ms") && hand.reads("Debounce set to 10ms"); });
    tour.then(
        "the factory settings are restored", [&hand] { hand.click("Restore Factory Settings"); },
        [&hand] { return hand.reads("Applied: Flash_away (Stream)"); });
    tour.then(
        "the debounce follows", [] {}, [&hand] { return hand.reads("Debounce set to 10ms"); });
    tour.then(
        "the smallest window", [&window] { window.resize(900, 680); },
        [&window] { return window.size() == QSize(900, 680); });
    tour.picture("51-settings-smallest.png");
    tour.then(
        "the focus scrolls the page",
        [&hand] {
            for (int stop = 0; stop < 5; ++stop) hand.key(Qt::Key_Tab);
        },
        [&hand] { return hand.focused() == "Relaunch App"; });
    tour.picture("52-settings-scrolled.png");
    tour.then(
        "the keys are allowed",
        [&hand, &window] {
            window.resize(960, 760);
            hand.click("Request Access");
        },
        [&hand] { return hand.count("Request Access") == 0; });
    tour.picture("53-settings-granted.png");
}

}  // namespace lumo::tour
