#include "faults/CommandTable.h"

#include <array>
#include <numeric>

namespace lumo::test {
namespace {

using enum vk::Direction;

constexpr ColorBytes kPink{255, 0, 120};
constexpr std::size_t kEnoughOfTheParameters = 135;
constexpr std::size_t kEnoughOfTheTable = 512;

// Two transfers of which nothing decides, and the write that does.
constexpr TransferPlan kColoursAsked{set, 0x8A, 20};
constexpr TransferPlan kColoursRead{get, 0x8A, 0};
constexpr TransferPlan kColoursWritten{set, 0x0A, 20};
constexpr TransferPlan kParametersAsked{set, 0x84, 20};
constexpr TransferPlan kParametersRead{get, 0x84, 0};

constexpr TransferPlan parametersWritten(std::string_view failed) { return {set, 0x04, 0, failed}; }

ExchangePlan effect(const std::string& name) {
    return {{kColoursAsked, kColoursRead, kColoursWritten, kParametersAsked, kParametersRead,
             parametersWritten("Hardware command failed")},
            "Applied: " + name,
            "Previewing " + name + " (Simulated)"};
}

ExchangePlan upload() {
    return {{{set, 0x09, 50},
             {set, 0x09, 50},
             {set, 0x06, 30},
             kParametersAsked,
             kParametersRead,
             parametersWritten("Per-Key RGB sync failed")},
            "Custom Per-Key RGB Synchronized (67 keys)",
            "Previewed Custom Per-Key RGB Matrix (67 keys)"};
}

/// A change of one byte of the parameter block, which is given up without a word when the block cannot be read.
ExchangePlan setting(int pauseMs, std::string done, std::string_view failed) {
    return {{{set, 0x84, pauseMs, ""}, {get, 0x84, 0, "", kEnoughOfTheParameters}, parametersWritten(failed)},
            std::move(done),
            ""};
}

ExchangePlan debounce(const std::string& shown) {
    return setting(20, "Debounce set to " + shown + "ms", "Debounce write failed");
}

std::vector<TransferPlan> tableRead() { return {{set, 0x83, 30, ""}, {get, 0x83, 0, "", kEnoughOfTheTable, true}}; }

ExchangePlan keyChange(int place) {
    auto transfers = tableRead();
    transfers.push_back({set, 0x03, 0, "Key remap write failed"});
    return {std::move(transfers), "Key position " + std::to_string(place) + " programmed", ""};
}

bool isLit(SharedObjects& objects, std::int64_t mode, std::int64_t speed, std::int64_t brightness, ColorBytes color) {
    const VexaProtocol& link = objects.vexaProtocol();
    return link.activeModeId.get() == mode && link.speed.get() == speed && link.brightness.get() == brightness &&
           link.primaryColor.get() == color;
}

bool isLitAsAtFirst(SharedObjects& objects) { return isLit(objects, 4, 2, 4, kDefaultColorBytes); }

Command effectCommand() {
    return {"effect",
            [](auto& objects) { objects.vexaProtocol().setLightingMode(5, 3, 2, kPink); },
            {},
            {effect("Raindrops")},
            [](auto& objects) { return isLit(objects, 5, 3, 2, kPink); }};
}

Command burstCommand() {
    return {"burst",
            [](auto& objects) { objects.vexaProtocol().triggerBurstMode(kPink); },
            {"Burst Mode Triggered"},
            {effect("Colorful waterfall")},
            [](auto& objects) { return isLit(objects, 16, 3, 4, kPink); }};
}

Command uploadCommand() {
    return {"per-key upload",
            [](auto& objects) { objects.keyboardModel().syncToDevice(); },
            {},
            {upload()},
            [](auto& objects) { return isLit(objects, 21, 2, 4, kDefaultColorBytes); }};
}

Command tableReadCommand() {
    return {"remap read",
            [](auto& objects) { objects.vexaProtocol().readKeyRemapTable([](const auto&) {}); },
            {},
            {{tableRead(), "", ""}},
            isLitAsAtFirst};
}

Command keyCommand() {
    return {"remap single",
            [](auto& objects) {
                objects.vexaProtocol().setKeyRemap(9, std::vector<std::uint8_t>{0, 0, 0, 0x3E});
            },
            {},
            {keyChange(9)},
            isLitAsAtFirst};
}

Command hidCodeCommand() {
    return {"remap by hidCode",
            [](auto& objects) { objects.vexaProtocol().setKeyRemap(5, std::uint32_t{0x00020004}); },
            {},
            {keyChange(5)},
            isLitAsAtFirst};
}

Command tableCommand() {
    return {"remap whole table",
            [](auto& objects) { objects.vexaProtocol().setKeyRemapTable(std::vector<std::uint8_t>(520, 0x11)); },
            {},
            {{{{set, 0x03, 0, "Key Remap write failed"}},
              "Key Remap Matrix Programmed",
              "Key Remap Matrix Programmed (Simulated)"}},
            isLitAsAtFirst};
}

Command debounceCommand() {
    return {"debounce",
            [](auto& objects) { objects.vexaProtocol().setDebounce(25); },
            {},
            {debounce("20")},
            isLitAsAtFirst};
}

Command resetCommand() {
    return {"factory reset",
            [](auto& objects) { objects.vexaProtocol().factoryReset(); },
            {"Device restored to factory defaults."},
            {effect("Flash_away (Stream)"), debounce("10")},
            isLitAsAtFirst};
}

Command streamCommand() {
    return {"stream",
            [](auto& objects) { objects.vexaProtocol().streamAudioVisualizerFrame(std::array<std::uint8_t, 16>{}); },
            {},
            {setting(10, "", "")},
            [](auto& objects) { return isLit(objects, 4, 2, 1, kDefaultColorBytes); }};
}

}  // namespace

const ExchangePlan& handshakePlan() {
    constexpr std::string_view kFallback = "Connected (Simulation Fallback)";
    static const ExchangePlan plan{{{set, 0x82, 30, kFallback}, {get, 0x82, 0, kFallback, 8, true}},
                                   "Connected & Authenticated",
                                   "Connected & Authenticated"};
    return plan;
}

const std::vector<Command>& commandTable() {
    static const std::vector<Command> table{effectCommand(), burstCommand(),   uploadCommand(), tableReadCommand(),
                                            keyCommand(),    hidCodeCommand(), tableCommand(),  debounceCommand(),
                                            resetCommand(),  streamCommand()};
    return table;
}

std::size_t transferCount(const Command& command) {
    return std::accumulate(command.exchanges.begin(), command.exchanges.end(), std::size_t{0},
                           [](std::size_t sum, const ExchangePlan& plan) { return sum + plan.transfers.size(); });
}

}  // namespace lumo::test
