// The keys: which are selected, what colour each has, and their upload.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "device/PerKeyColors.h"
#include "foundation/Color.h"
#include "foundation/Observable.h"
#include "keyboard/KeyCap.h"

namespace lumo {

class VexaProtocol;

/// Main thread, but for `colorPlaces`. The link outlives the model's last call of it.
class KeyboardModel final : public ObservableObject, public PerKeyColors {
public:
    /// The one instance of the running program.
    static KeyboardModel& shared();

    explicit KeyboardModel(VexaProtocol& link);

    SharedPublished<std::vector<KeyCap>> keys{*this, {}};
    Published<std::set<std::string>> selectedKeyIds{*this, {}};
    Published<std::optional<Color>> currentColor{*this, std::nullopt};
    Published<std::int64_t> activeLayer{*this, 0};

    /// Puts the factory layout into `keys`, with one announcement.
    void loadDefaultLayout();

    /// With `multiSelect` toggles the key, without it selects that key alone. Ids are not checked.
    void selectKey(const std::string& id, bool multiSelect);

    /// The first of the selected keys in the order of the layout; null when no key has a selected id. Valid until the
    /// keys change.
    [[nodiscard]] const KeyCap* firstSelectedKey() const;

    /// Notes what a key does from now on, or of all that they do what they did at first. Sends nothing. An id that no
    /// key has changes nothing.
    void bindKey(const std::string& id, std::vector<std::uint8_t> code, std::string label);
    void unbindKeys();

    /// Colours one key and uploads. An id that no key has only changes `currentColor`.
    void paintKey(const std::string& id, const Color& color);

    /// Colours every selected key and uploads, also when none is selected.
    void applyColorToSelection(const std::optional<Color>& color);

    /// Colours every key and uploads.
    void applyColorToAll(const std::optional<Color>& color);

    /// Colours every key without an upload.
    void showColorOnAll(const std::optional<Color>& color);

    /// Hues around the circle by LED number, one upload.
    void applyRainbowPreset();

    /// Selects "WASD", "Arrows", "Numbers" or "All"; any other name selects nothing.
    void selectPresetGroup(std::string_view name);

    void syncToDevice() override;
    [[nodiscard]] std::vector<KeyColorPlace> colorPlaces() const override;

private:
    template <typename Change>
    void changeKeys(Change change);
    /// False when no key has that id.
    template <typename Change>
    bool changeKey(const std::string& id, Change change);

    VexaProtocol& m_link;
};

}  // namespace lumo
