#include "macro/MacroItem.h"

#include <initializer_list>

namespace lumo {
namespace {

enum class Direction : std::uint8_t { down, up };
using enum Direction;

struct Step {
    std::uint8_t keyCode;
    Direction direction;
    std::int64_t delayMs;
};

std::vector<MacroEvent> events(std::initializer_list<Step> steps) {
    std::vector<MacroEvent> made;
    made.reserve(steps.size());
    for (const Step& step : steps) made.push_back({Uuid::random(), step.keyCode, step.direction == down, step.delayMs});
    return made;
}

}  // namespace

std::vector<MacroItem> builtInMacros() {
    return {
        {"Rapid WASD", events({{87, down, 25}, {87, up, 25}, {83, down, 25}, {83, up, 25}})},
        {"Super Jump", events({{17, down, 10}, {32, down, 40}, {32, up, 10}, {17, up, 10}})},
        {"Rapid Fire", events({{240, down, 15}, {240, up, 15}})},
    };
}

std::vector<MacroEvent> initialEditorSteps() {
    return events({{87, down, 25}, {87, up, 25}, {83, down, 30}, {83, up, 30}, {65, down, 20}, {65, up, 20}});
}

}  // namespace lumo
