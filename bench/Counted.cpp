// counted frames|command: work of which callgrind counts the instructions, always the same. What is not to be counted
// lies outside of countedWork().
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string_view>

#include "app/SharedObjects.h"
#include "device/LightingModes.h"
#include "keyboard/KeyboardLayout.h"
#include "keyboard/KeyboardPicture.h"
#include "support/TestPlatform.h"

/// Its name is what callgrind is told.
[[gnu::noinline]] void countedWork(const std::function<void()>& work) { work(); }

namespace lumo {
namespace {

constexpr int kFrames = 20;
constexpr std::int64_t kMovingMode = 4;

/// Frames of a moving effect at scale 1, computed and painted, without the first one.
void frames() {
    const std::vector<KeyCap> keys = defaultLayout();
    KeyboardPicture picture(keys, [] { return QImage("vexa_lumo_macos/assets/keyimg.png"); });
    std::vector<KeyLook> looks(keys.size());
    QImage window(kPictureSize.toSize(), QImage::Format_RGB32);
    double time = 7.0e8;
    const auto frame = [&] {
        time += 1.0 / 60.0;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            looks[i].light = LightingEngine::color(keys[i], kMovingMode, time, kDefaultColorBytes, 4.0, 2.0);
        }
        const QRect dirty = picture.compose(looks);
        QPainter painter(&window);
        picture.paint(painter, QPointF(), dirty);
    };
    frame();
    countedWork([&] {
        for (int i = 0; i < kFrames; ++i) frame();
    });
}

/// One lighting command on the in-process keyboard, from the call to its published text, in virtual time.
void command() {
    test::TestPlatform platform;
    SharedObjects objects(platform);
    VexaProtocol& link = objects.vexaProtocol();
    platform.hid().plugKeyboard();
    platform.time.settle();
    countedWork([&] {
        link.setLightingMode(5);
        platform.time.settle();
    });
    if (link.statusMessage.get() != "Applied: Raindrops") std::abort();
}

}  // namespace
}  // namespace lumo

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const std::string_view what = argc == 2 ? argv[1] : "";
    if (what == "frames") {
        lumo::frames();
    } else if (what == "command") {
        lumo::command();
    } else {
        std::fprintf(stderr, "usage: %s frames|command\n", argv[0]);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
