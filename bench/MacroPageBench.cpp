// What the macro page costs with a macro of ten thousand steps.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QScrollBar>

#include "app/SharedObjects.h"
#include "controls/ScrollBox.h"
#include "demo/DemoPlatform.h"
#include "macro/MacroEditorView.h"
#include "macro/TimelineCard.h"

namespace lumo {
namespace {

constexpr std::size_t kSteps = 10'000;
constexpr QSize kPage(928, 380);

/// The state behind the page, over the demo's platform.
struct Objects {
    Objects() {
        std::vector<MacroEvent> steps;
        for (std::size_t i = 0; i < kSteps; ++i) {
            steps.push_back({Uuid::random(), static_cast<std::uint8_t>(i % 256), i % 2 == 0, 25});
        }
        UIState::shared().macroEvents.set(steps);
    }

    vk::DemoPlatform platform{vk::ReportLog()};
    SharedObjects shared{platform};
};

void paint(QWidget& page, int scale) {
    QImage picture(kPage * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    page.render(&picture);
}

void openPage(benchmark::State& state) {
    Objects objects;
    for ([[maybe_unused]] auto _ : state) {
        MacroEditorView page(VexaProtocol::shared(), UIState::shared(), objects.shared.mainQueue(), nullptr);
        page.resize(kPage);
        paint(page, static_cast<int>(state.range(0)));
    }
}
BENCHMARK(openPage)
    ->Name("open the macro page with 10,000 steps, scale")
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond);

void scrollRows(benchmark::State& state) {
    Objects objects;
    MacroEditorView page(VexaProtocol::shared(), UIState::shared(), objects.shared.mainQueue(), nullptr);
    page.resize(kPage);
    page.show();
    QScrollBar& bar = *page.findChild<TimelineCard*>()->findChild<ScrollBox*>()->verticalScrollBar();
    for ([[maybe_unused]] auto _ : state) {
        bar.setValue((bar.value() + 61) % bar.maximum());
        paint(*page.findChild<TimelineCard*>(), static_cast<int>(state.range(0)));
    }
}
BENCHMARK(scrollRows)
    ->Name("scroll 10,000 steps and paint the timeline, scale")
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumo
