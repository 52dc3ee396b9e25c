#include "keyboard/KeyboardModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "device/VexaProtocol.h"
#include "keyboard/KeyboardLayout.h"

namespace lumo {
namespace {

constexpr std::int64_t kLedCount = 67;

std::set<std::string> presetGroup(std::string_view name, const std::vector<KeyCap>& keys) {
    if (name == "WASD") return {"K18", "K32", "K33", "K34"};
    if (name == "Arrows") return {"K57", "K64", "K65", "K66"};
    if (name == "Numbers") {
        return {"K2", "K3", "K4", "K5", "K6", "K7", "K8", "K9", "K10", "K11", "K12", "K13"};
    }
    std::set<std::string> ids;
    if (name == "All") std::ranges::transform(keys, std::inserter(ids, ids.end()), &KeyCap::id);
    return ids;
}

}  // namespace

KeyboardModel::KeyboardModel(VexaProtocol& link) : m_link(link) { loadDefaultLayout(); }

void KeyboardModel::loadDefaultLayout() { keys.set(defaultLayout()); }

template <typename Change>
void KeyboardModel::changeKeys(Change change) {
    auto changed = keys.get();
    for (KeyCap& key : changed) change(key);
    keys.set(std::move(changed));
}

template <typename Change>
bool KeyboardModel::changeKey(const std::string& id, Change change) {
    auto changed = keys.get();
    const auto key = std::ranges::find(changed, id, &KeyCap::id);
    if (key == changed.end()) return false;
    change(*key);
    keys.set(std::move(changed));
    return true;
}

const KeyCap* KeyboardModel::firstSelectedKey() const {
    const auto& all = keys.get();
    const auto key =
        std::ranges::find_if(all, [&](const KeyCap& each) { return selectedKeyIds.get().contains(each.id); });
    return key == all.end() ? nullptr : &*key;
}

void KeyboardModel::bindKey(const std::string& id, std::vector<std::uint8_t> code, std::string label) {
    (void)changeKey(id, [&](KeyCap& key) {
        key.remapBytes = std::move(code);
        key.remapLabel = std::move(label);
    });
}

void KeyboardModel::unbindKeys() {
    changeKeys([](KeyCap& key) {
        key.remapBytes.reset();
        key.remapLabel.reset();
        key.remapCode.reset();
    });
}

void KeyboardModel::selectKey(const std::string& id, bool multiSelect) {
    if (!multiSelect) return selectedKeyIds.set({id});
    auto selected = selectedKeyIds.get();
    if (selected.erase(id) == 0) selected.insert(id);
    selectedKeyIds.set(std::move(selected));
}

void KeyboardModel::paintKey(const std::string& id, const Color& color) {
    currentColor.set(color);
    if (changeKey(id, [&](KeyCap& key) { key.customColor = color; })) syncToDevice();
}

void KeyboardModel::applyColorToSelection(const std::optional<Color>& color) {
    currentColor.set(color);
    changeKeys([&](KeyCap& key) {
        if (selectedKeyIds.get().contains(key.id)) key.customColor = color;
    });
    syncToDevice();
}

void KeyboardModel::applyColorToAll(const std::optional<Color>& color) {
    currentColor.set(color);
    showColorOnAll(color);
    syncToDevice();
}

void KeyboardModel::showColorOnAll(const std::optional<Color>& color) {
    changeKeys([&](KeyCap& key) { key.customColor = color; });
}

void KeyboardModel::applyRainbowPreset() {
    changeKeys(
        [](KeyCap& key) { key.customColor = Color::fromHsb(static_cast<double>(key.ledIndex) / 67.0, 1.0, 1.0); });
    syncToDevice();
}

void KeyboardModel::selectPresetGroup(std::string_view name) {
    selectedKeyIds.set({});
    auto group = presetGroup(name, keys.get());
    if (!group.empty()) selectedKeyIds.set(std::move(group));
}

void KeyboardModel::syncToDevice() {
    LedColors colors;
    for (const KeyCap& key : keys.get()) {
        if (key.ledIndex < kLedCount) colors[key.ledIndex] = toBytes(key.customColor);
    }
    m_link.setPerKeyRGB(std::move(colors));
}

std::vector<KeyColorPlace> KeyboardModel::colorPlaces() const {
    const auto all = keys.snapshot();
    std::vector<KeyColorPlace> places;
    places.reserve(all.size());
    std::ranges::transform(all, std::back_inserter(places), [](const KeyCap& key) {
        return KeyColorPlace{key.ledIndex, key.bank, key.bankOffset};
    });
    return places;
}

}  // namespace lumo
