#include "MusicTour.h"

#include <QWidget>

#include "Hand.h"
#include "Tour.h"

namespace lumo::tour {
namespace {

constexpr auto kNotice = "Microphone permission required for live spectrum sampling.";
constexpr auto kMode = "Mountains and Flowing Waters - regular";

void addStream(Tour& tour, Hand& hand) {
    tour.then(
        "a mode starts the stream", [&hand] { hand.click(kMode); },
        [&hand] { return hand.count("STREAMING: ON") == 1 && hand.reads(QString("Music reactive mode: ") + kMode); });
    tour.picture("41-music-streaming.png");
    tour.then(
        "the microphone is allowed", [&hand] { hand.click("Grant Access"); }, [&hand] { return !hand.reads(kNotice); });
    tour.then(
        "the gain is raised",
        [&hand] {
            hand.drag("GAIN FACTOR", {90, 10}, {380, 0});
        },
        [&hand] { return hand.reads("5.0x"); });
    tour.picture("42-music-allowed.png");
    tour.then(
        "the stream is stopped", [&hand] { hand.click("STREAMING: ON"); },
        [&hand] { return hand.count("STREAM: OFF") == 1; });
}

}  // namespace

void addMusicPage(Tour& tour, Hand& hand, QWidget& window) {
    tour.then(
        "the music page in the usual window",
        [&hand, &window] {
            window.resize(960, 760);
            hand.click("Music Visualizer");
        },
        [&hand, &window] { return hand.reads(kNotice) && window.size() == QSize(960, 760); });
    tour.picture("40-music.png");
    tour.then(
        "the smallest window", [&window] { window.resize(900, 680); },
        [&window] { return window.size() == QSize(900, 680); });
    tour.picture("43-music-smallest.png");
    tour.then(
        "the usual window", [&window] { window.resize(960, 760); },
        [&window] { return window.size() == QSize(960, 760); });
    addStream(tour, hand);
}

}  // namespace lumo::tour
