#include "RemapTour.h"

#include <QWidget>

#include "Hand.h"
#include "Tour.h"

namespace lumo::tour {
namespace {

constexpr auto kPrompt = "Select a switch on the keyboard above, then click an action below to bind.";

class RemapTour final {
public:
    RemapTour(Tour& tour, Hand& hand, QWidget& window) : m_tour(tour), m_hand(hand), m_window(window) {}

    void resizeTo(QSize size) const {
        QWidget& window = m_window;
        m_tour.then(
            "the window is resized", [&window, size] { window.resize(size); },
            [&window, size] { return window.size() == size; });
    }

    /// One click, and what can be read then.
    void click(const QString& name, const QString& text) const {
        Hand& hand = m_hand;
        m_tour.then(
            name + " is clicked", [&hand, name] { hand.click(name); }, [&hand, text] { return hand.reads(text); });
    }

    void showCategory(const QString& title, const QString& shown, const QString& fileName) const {
        Hand& hand = m_hand;
        m_tour.then(
            title + " is chosen", [&hand, title] { hand.click(title); },
            [&hand, shown] { return hand.count(shown) + (hand.reads(shown) ? 1 : 0) > 0; });
        m_tour.picture(fileName);
    }

    void moveTo(const QString& name) const {
        Hand& hand = m_hand;
        m_tour.then(
            "the pointer rests on " + name, [&hand, name] { hand.moveTo(name); }, [] { return true; });
    }

    void bindByKeyboard() const {
        Hand& hand = m_hand;
        m_tour.then(
            "by the keyboard alone",
            [&hand] {
                for (const int key : {Qt::Key_Tab, Qt::Key_Right, Qt::Key_Down, Qt::Key_Space}) hand.key(key);
            },
            [&hand] { return hand.reads("Current: Calculator"); });
    }

private:
    Tour& m_tour;
    Hand& m_hand;
    QWidget& m_window;
};

}  // namespace

void addRemapPage(Tour& tour, Hand& hand, QWidget& window) {
    const RemapTour remap(tour, hand, window);
    remap.resizeTo({960, 760});
    remap.click("Key Assignment", "CATEGORIES");
    remap.click("Clear", kPrompt);
    remap.showCategory("Shortcuts", "Disable Key", "20-remap-shortcuts.png");
    remap.click("Ctrl + C (Copy)", "Please select a switch on the keyboard first.");
    remap.showCategory("Letters & Numbers", "NUMBERS (0-9)", "21-remap-letters.png");
    remap.click("CapsLock", "CapsLock (Matrix Pos 3)");
    remap.showCategory("Mouse", "Backward", "22-remap-mouse.png");
    remap.showCategory("Function (F1-F12)", "F12", "23-remap-function.png");
    remap.showCategory("Multimedia", "Mute", "24-remap-multimedia.png");
    remap.click("Mute", "Current: Mute");
    remap.moveTo("Stop");
    tour.picture("25-remap-bound.png");
    remap.click("Save Key Matrix", "Key position 3 programmed");
    remap.resizeTo({900, 680});
    tour.picture("26-remap-smallest.png");
    remap.showCategory("Letters & Numbers", "NUMBERS (0-9)", "27-remap-letters-smallest.png");
    remap.resizeTo({1360, 860});
    remap.click("Multimedia", "Current: Mute");
    remap.bindByKeyboard();
    tour.picture("28-remap-keyboard-large.png");
    remap.click("Reset to Defaults", "Default Mapping");
    tour.picture("29-remap-reset.png");
}

}  // namespace lumo::tour
