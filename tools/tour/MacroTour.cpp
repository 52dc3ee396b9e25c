#include "MacroTour.h"

#include <QWidget>

#include "Hand.h"
#include "Tour.h"

namespace lumo::tour {
namespace {

void addEditing(Tour& tour, Hand& hand) {
    tour.then(
        "the macro page", [&hand] { hand.click("Macro Manager"); },
        [&hand] { return hand.reads("TIMELINE: Rapid WASD"); });
    tour.picture("12-macros.png");
    tour.then(
        "the steps are compiled", [&hand] { hand.click("Recompile Bytecode"); },
        [&hand] {
            return hand.reads(
                "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 00 00\n"
                "10: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                "20: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                "30: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                "40: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                "50: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                "60: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
                "70: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
        });
    tour.then(
        "recording begins",
        [&hand] {
            hand.click("Record Action");
            hand.moveTo("Delete step 3");
        },
        [&hand] { return hand.reads("Macro recording started..."); });
    tour.picture("13-recording.png");
    tour.then(
        "recording ends", [&hand] { hand.click("Stop Recording"); },
        [&hand] { return hand.reads("Recording saved to 'Rapid WASD'"); });
}

void addProfiles(Tour& tour, Hand& hand) {
    tour.then(
        "a macro is added", [&hand] { hand.click("Add macro"); }, [&hand] { return hand.reads("TIMELINE: Macro 4"); });
    tour.then(
        "it gets more steps",
        [&hand] {
            for (int i = 0; i < 8; ++i) hand.click("Insert Step");
            hand.click("Until key released");
        },
        [&hand] { return hand.count("Delete step 18") == 1; });
    tour.picture("14-many-steps.png");
    tour.then(
        "by the keyboard alone",
        [&hand] {
            hand.key(Qt::Key_Backtab);
            hand.key(Qt::Key_Up);
        },
        [&hand] { return hand.focused() == "TIMELINE"; });
    tour.picture("15-macro-focus.png");
}

}  // namespace

void addMacroPage(Tour& tour, Hand& hand, QWidget& window) {
    const auto resizeTo = [&tour, &window](const QString& what, QSize size) {
        tour.then(
            what, [&window, size] { window.resize(size); }, [&window, size] { return window.size() == size; });
    };
    resizeTo("the usual window again", {960, 760});
    addEditing(tour, hand);
    addProfiles(tour, hand);
    resizeTo("the smallest window on the macro page", {900, 680});
    tour.then(
        "the first macro", [&hand] { hand.click("Rapid WASD"); },
        [&hand] { return hand.reads("TIMELINE: Rapid WASD"); });
    tour.picture("16-macros-smallest.png");
    resizeTo("a large window on the macro page", {1360, 860});
    tour.picture("17-macros-large.png");
}

}  // namespace lumo::tour
