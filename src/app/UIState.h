// What the user has chosen in the interface. Nothing here is saved, and setting a value sends nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/NavTab.h"
#include "foundation/Color.h"
#include "foundation/Observable.h"
#include "macro/MacroItem.h"

namespace lumo {

/// Main thread only.
class UIState final : public ObservableObject {
public:
    /// The one instance of the running program.
    static UIState& shared();

    Published<NavTab> currentTab{*this, NavTab::lighting};
    Published<std::int64_t> activeProfile{*this, 1};  // from 1
    Published<std::optional<std::string>> hoveredKeyId{*this, std::nullopt};
    Published<Color> selectedColor{*this, kDefaultColor};
    Published<double> speedLevel{*this, 2.0};       // 0 to 4
    Published<double> brightnessLevel{*this, 4.0};  // 0 to 4
    Published<bool> isColorWheelActive{*this, false};
    Published<std::int64_t> activeMusicMode{*this, 1};
    Published<double> musicGain{*this, 2.5};
    Published<double> musicSmooth{*this, 3.0};
    Published<std::string> remapCategory{*this, "Multimedia"};
    Published<std::vector<MacroItem>> macroList{*this, builtInMacros()};
    Published<std::int64_t> selectedMacroIndex{*this, 0};
    Published<std::string> macroName{*this, "Rapid WASD"};
    Published<std::vector<MacroEvent>> macroEvents{*this, initialEditorSteps()};
    Published<bool> isRecording{*this, false};
    Published<std::int64_t> macroLoopMode{*this, 0};
    Published<std::int64_t> macroLoopCount{*this, 3};
    Published<std::string> compiledMacroHex{*this, ""};
    Published<double> sleepMinutes{*this, 10.0};
    Published<double> debounceMs{*this, 4.0};
    Published<bool> autorun{*this, true};
};

}  // namespace lumo
