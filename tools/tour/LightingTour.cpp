#include "LightingTour.h"

#include <QWidget>

#include "Hand.h"
#include "Tour.h"

namespace lumo::tour {
namespace {

constexpr auto kUploaded = "Custom Per-Key RGB Synchronized (67 keys)";

void addEffects(Tour& tour, Hand& hand) {
    tour.then(
        "the keyboard connects", [&hand] { hand.moveTo("G"); },
        [&hand] { return hand.reads("Connected & Authenticated"); });
    tour.picture("01-connected.png");
    tour.then(
        "an effect is chosen", [&hand] { hand.click("Rainbow_wheel"); },
        [&hand] { return hand.reads("Applied: Rainbow_wheel"); });
    tour.then(
        "the speed is raised",
        [&hand] {
            hand.drag("SPEED", hand.place("SPEED").size().width() / 2 * QPoint(1, 0) + QPoint(0, 14), {200, 0});
        },
        [&hand] { return hand.reads("Level 4"); });
    tour.picture("02-effect.png");
    tour.then(
        "a colour is picked",
        [&hand] {
            hand.click("Ripples_shining");
            hand.click("Sky blue");
        },
        [&hand] { return hand.reads("Applied: Ripples_shining"); });
    tour.picture("03-colour.png");
}

void addKeys(Tour& tour, Hand& hand) {
    tour.then(
        "the per-key effect", [&hand] { hand.click("Self-define (Per-Key RGB)"); },
        [&hand] { return hand.reads(kUploaded); });
    tour.then(
        "four keys are selected", [&hand] { hand.click("WASD"); },
        [&hand] { return hand.reads("4 of 67 keys selected"); });
    tour.then(
        "they are painted", [&hand] { hand.click("Pink"); }, [&hand] { return hand.reads(kUploaded); });
    tour.picture("04-keys.png");
    tour.then(
        "the rainbow",
        [&hand] {
            hand.click("Clear");
            hand.click("Rainbow Preset");
        },
        [&hand] { return hand.reads("Click any key on the keyboard to customize lighting or remap function."); });
    tour.picture("05-rainbow.png");
}

void addKeyboardUse(Tour& tour, Hand& hand) {
    tour.then(
        "by the keyboard alone",
        [&hand] {
            hand.click("Default");
            hand.key(Qt::Key_Backtab);
            for (const int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Space}) hand.key(key);
        },
        [&hand] { return hand.focused() == "Keyboard"; });
    tour.picture("06-keyboard-focus.png");
}

void addSizes(Tour& tour, QWidget& window) {
    const auto resizeTo = [&tour, &window](const QString& what, QSize size) {
        tour.then(
            what, [&window, size] { window.resize(size); }, [&window, size] { return window.size() == size; });
    };
    resizeTo("the smallest window", {900, 680});
    tour.picture("07-smallest.png");
    resizeTo("a large window", {1360, 860});
    tour.picture("08-large.png");
}

}  // namespace

void addLightingPage(Tour& tour, Hand& hand, QWidget& window) {
    addEffects(tour, hand);
    addKeys(tour, hand);
    addKeyboardUse(tour, hand);
    addSizes(tour, window);
}

}  // namespace lumo::tour
