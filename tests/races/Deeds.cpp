#include "races/Deeds.h"

#include <array>
#include <string>

#include "support/RandomFault.h"

namespace lumo::test {
namespace {

std::uint8_t byteOf(Chance& chance) { return chance.between<std::uint8_t>(0, 255); }
std::int64_t levelOf(Chance& chance) { return chance.between<std::int64_t>(0, 4); }
ColorBytes bytesOf(Chance& chance) { return {byteOf(chance), byteOf(chance), byteOf(chance)}; }
Color colorOf(Chance& chance) { return Color::fromBytes(bytesOf(chance)); }
std::string keyOf(Chance& chance) { return "K" + std::to_string(chance.between(1, 68)); }  // there is no K68
std::vector<std::uint8_t> codeOf(Chance& chance) { return {byteOf(chance), byteOf(chance), 0, byteOf(chance)}; }

template <std::size_t size>
std::array<std::uint8_t, size> someBytes(Chance& chance) {
    std::array<std::uint8_t, size> bytes{};
    for (std::uint8_t& byte : bytes) byte = byteOf(chance);
    return bytes;
}

void plugOne(const Stage& on) { on.platform.hid().plug(vk::configurationInterface()); }
void plugAll(const Stage& on) { on.platform.hid().plugKeyboard(); }
void unplugOne(const Stage& on) {
    const auto present = on.platform.hid().devices();
    if (present.empty()) return;
    on.platform.hid().unplug(std::dynamic_pointer_cast<vk::InProcessDevice>(on.chance.of(present)));
}
void replug(const Stage& on) {
    on.platform.hid().unplugAll();
    on.platform.hid().plugKeyboard();
}

void misbehave(const Stage& on) {
    on.platform.onIoThread(
        [&firmware = on.platform.firmware, fault = randomFault(on.chance)] { firmware.addFault(fault); });
}

void chooseEffect(const Stage& on) {
    on.link().setLightingMode(on.chance.of(VexaProtocol::lightingModes).id, levelOf(on.chance), levelOf(on.chance),
                              bytesOf(on.chance));
}
void burst(const Stage& on) { on.link().triggerBurstMode(bytesOf(on.chance)); }
void uploadColors(const Stage& on) { on.link().setPerKeyRGB({{on.chance.between(0, 66), bytesOf(on.chance)}}); }
void stream(const Stage& on) { on.link().streamAudioVisualizerFrame(someBytes<16>(on.chance)); }
void debounce(const Stage& on) { on.link().setDebounce(on.chance.between<std::int64_t>(0, 60)); }
void reset(const Stage& on) { on.link().factoryReset(); }
void readTable(const Stage& on) {
    on.link().readKeyRemapTable([](const auto&) {});
}
void remapKey(const Stage& on) { on.link().setKeyRemap(on.chance.between<std::int64_t>(-1, 128), codeOf(on.chance)); }
void remapKeyByNumber(const Stage& on) { on.link().setKeyRemap(on.chance.between<std::int64_t>(0, 90), 0x00020004U); }
void writeTable(const Stage& on) {
    const auto table = someBytes<520>(on.chance);
    on.link().setKeyRemapTable({table.begin(), table.begin() + on.chance.between(0, 520)});
}

void paintKey(const Stage& on) { on.keyboard().paintKey(keyOf(on.chance), colorOf(on.chance)); }
void paintSelection(const Stage& on) { on.keyboard().applyColorToSelection(colorOf(on.chance)); }
void paintAll(const Stage& on) { on.keyboard().applyColorToAll(colorOf(on.chance)); }
void paintRainbow(const Stage& on) { on.keyboard().applyRainbowPreset(); }
void showOnAll(const Stage& on) { on.keyboard().showColorOnAll(std::nullopt); }
void loadLayout(const Stage& on) { on.keyboard().loadDefaultLayout(); }
void selectKey(const Stage& on) { on.keyboard().selectKey(keyOf(on.chance), on.chance.oneIn(2)); }
void selectGroup(const Stage& on) { on.keyboard().selectPresetGroup("WASD"); }
void bindKey(const Stage& on) { on.keyboard().bindKey(keyOf(on.chance), codeOf(on.chance), "Mute"); }
void unbindKeys(const Stage& on) { on.keyboard().unbindKeys(); }
void setSpeed(const Stage& on) { on.link().speed.set(levelOf(on.chance)); }
void setBrightness(const Stage& on) { on.link().brightness.set(levelOf(on.chance)); }
void startMusic(const Stage& on) { on.objects.audioVisualizerEngine().start(); }
void stopMusic(const Stage& on) { on.objects.audioVisualizerEngine().stop(); }
void changeGrants(const Stage& on) {
    on.platform.grants.canListen = on.chance.oneIn(2);
    on.objects.permissionManager().checkPermissions();
}

constexpr Deed kDeeds[] = {
    {DeedKind::plugging, plugOne},
    {DeedKind::plugging, plugAll},
    {DeedKind::plugging, unplugOne},
    {DeedKind::plugging, replug},
    {DeedKind::fault, misbehave},
    {DeedKind::command, chooseEffect},
    {DeedKind::command, burst},
    {DeedKind::command, uploadColors},
    {DeedKind::command, stream},
    {DeedKind::command, debounce},
    {DeedKind::command, reset},
    {DeedKind::command, readTable},
    {DeedKind::command, remapKey},
    {DeedKind::command, remapKeyByNumber},
    {DeedKind::command, writeTable},
    {DeedKind::command, paintKey},
    {DeedKind::command, paintSelection},
    {DeedKind::command, paintAll},
    {DeedKind::command, paintRainbow},
    {DeedKind::stateChange, showOnAll},
    {DeedKind::stateChange, loadLayout},
    {DeedKind::stateChange, selectKey},
    {DeedKind::stateChange, selectGroup},
    {DeedKind::stateChange, bindKey},
    {DeedKind::stateChange, unbindKeys},
    {DeedKind::stateChange, setSpeed},
    {DeedKind::stateChange, setBrightness},
    {DeedKind::stateChange, startMusic},
    {DeedKind::stateChange, stopMusic},
    {DeedKind::stateChange, changeGrants},
};

}  // namespace

std::span<const Deed> allDeeds() { return kDeeds; }

}  // namespace lumo::test
