// What a frame of the lighting preview costs, computed and painted, beside the same picture with everything drawn anew.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <ctime>
#include <vector>

#include "UncachedKeyboardPainter.h"
#include "device/LightingModes.h"
#include "keyboard/KeyboardLayout.h"
#include "keyboard/KeyboardPicture.h"

namespace lumo {
namespace {

constexpr double kFrameSeconds = 1.0 / 60.0;
constexpr double kBrightness = 4.0;
constexpr double kSpeed = 2.0;

/// Of all threads: Qt spreads some work over several.
double processSeconds() {
    std::timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

QImage windowPicture(int scale) {
    QImage image(QSize(650, 247) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::black);
    return image;
}

QImage keyboardImage() { return QImage("vexa_lumo_macos/assets/keyimg.png"); }

/// The looks of one effect, frame by frame.
class Effect final {
public:
    explicit Effect(std::int64_t mode) : m_mode(mode), m_looks(m_keys.size()) {}

    std::span<const KeyLook> next() {
        m_time += kFrameSeconds;
        for (std::size_t i = 0; i < m_keys.size(); ++i) {
            m_looks[i].light =
                LightingEngine::color(m_keys[i], m_mode, m_time, kDefaultColorBytes, kBrightness, kSpeed);
        }
        return m_looks;
    }

private:
    std::vector<KeyCap> m_keys = defaultLayout();
    std::int64_t m_mode;
    double m_time = 7.0e8;  // as counted from 2001
    std::vector<KeyLook> m_looks;
};

double cachedSeconds(std::int64_t mode, int scale, int frames) {
    KeyboardPicture picture(defaultLayout(), &keyboardImage);
    Effect effect(mode);
    QImage window = windowPicture(scale);
    const auto frame = [&] {
        const QRect dirty = picture.compose(effect.next());
        if (dirty.isEmpty()) return;
        QPainter painter(&window);
        picture.paint(painter, QPointF(), dirty);
    };
    frame();  // draws what stays
    frame();
    const double start = processSeconds();
    for (int i = 0; i < frames; ++i) frame();
    return (processSeconds() - start) / frames;
}

double uncachedSeconds(std::int64_t mode, int scale, int frames) {
    const bench::UncachedKeyboardPainter keyboard(defaultLayout(), keyboardImage());
    Effect effect(mode);
    QImage window = windowPicture(scale);
    const auto frame = [&] {
        QPainter painter(&window);
        keyboard.paint(painter, effect.next());
    };
    frame();
    const double start = processSeconds();
    for (int i = 0; i < frames; ++i) frame();
    return (processSeconds() - start) / frames;
}

/// Both ways in turns, so that what else the machine does hits them alike. The counters are the best of all turns.
void previewFrame(benchmark::State& state) {
    const auto mode = state.range(0);
    const int scale = static_cast<int>(state.range(1));
    double cached = 1.0;
    double uncached = 1.0;
    for ([[maybe_unused]] auto turn : state) {
        const double seconds = cachedSeconds(mode, scale, 60);
        state.SetIterationTime(seconds);
        cached = std::min(cached, seconds);
        uncached = std::min(uncached, uncachedSeconds(mode, scale, 4));
    }
    state.SetLabel(std::string(findLightingMode(mode)->name));
    state.counters["cached_ms"] = cached * 1e3;
    state.counters["uncached_ms"] = uncached * 1e3;
    state.counters["ratio"] = cached / uncached;
}

void everyEffect(benchmark::internal::Benchmark* bench) {
    for (const LightingModeInfo& mode : kLightingModes) {
        for (const int scale : {1, 2}) bench->Args({mode.id, scale});
    }
}
BENCHMARK(previewFrame)->Apply(everyEffect)->UseManualTime()->Iterations(6)->Unit(benchmark::kMillisecond);

/// From nothing to the first painted frame.
void firstFrame(benchmark::State& state) {
    const QImage image = keyboardImage();
    const int scale = static_cast<int>(state.range(0));
    QImage window = windowPicture(scale);
    Effect effect(4);
    for ([[maybe_unused]] auto turn : state) {
        const double start = processSeconds();
        KeyboardPicture picture(defaultLayout(), [&] { return image; });
        const QRect dirty = picture.compose(effect.next());
        QPainter painter(&window);
        picture.paint(painter, QPointF(), dirty);
        state.SetIterationTime(processSeconds() - start);
    }
}
BENCHMARK(firstFrame)->Arg(1)->Arg(2)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumo
