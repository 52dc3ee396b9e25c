// The program's only door to the keyboard: finds it, shakes hands, and carries every command to it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "device/Exchange.h"
#include "device/HeldDevice.h"
#include "device/KeyTableReports.h"
#include "device/LightingModes.h"
#include "device/MacroImage.h"
#include "device/PerKeyColors.h"
#include "foundation/Color.h"
#include "foundation/Observable.h"
#include "foundation/RunLoop.h"
#include "macro/MacroEvent.h"
#include "platform/Hid.h"

namespace lumo {

/// Main thread, but for `performHandshake`. Commands return at once; their exchanges run one after the other on the
/// I/O queue, and their outcome comes back as `statusMessage`. Both queues and the manager outlive this object, and
/// neither queue may run its tasks once it is gone.
class VexaProtocol final : public ObservableObject {
public:
    // NOLINTBEGIN(readability-identifier-naming): the names of the protocol's notes
    static constexpr std::uint16_t wiredVID = 0x258A;
    static constexpr std::uint16_t wiredPID = 0x010C;
    static constexpr std::uint16_t wirelessVID = 0x3554;
    static constexpr std::uint16_t wirelessPID = 0xFA09;
    /// The firmware has room for a password that no command of ours sends; none is known, so it is zeros.
    static constexpr std::array<std::uint8_t, 6> handshakePassword{};
    static constexpr const auto& lightingModes = kLightingModes;
    // NOLINTEND(readability-identifier-naming)

    using Print = std::function<void(std::string_view)>;

    /// The one instance of the running program.
    static VexaProtocol& shared();

    /// Opens the manager and adopts the interfaces already present. `perKeyColors` is asked for the keyboard model
    /// at the first command that needs it; `print` takes console lines on any thread.
    VexaProtocol(MainQueue main, IoQueue io, HidManager& manager, std::function<PerKeyColors&()> perKeyColors,
                 Print print);

    Published<bool> isConnected{*this, false};  // a qualifying interface is held
    Published<std::string> connectionType{*this, "Simulated / Disconnected"};
    Published<bool> isAuthenticated{*this, false};  // the handshake on the held interface succeeded
    Published<std::int64_t> activeModeId{*this, 4};
    SharedPublished<std::int64_t> speed{*this, 2};
    SharedPublished<std::int64_t> brightness{*this, 4};
    Published<ColorBytes> primaryColor{*this, kDefaultColorBytes};
    Published<std::string> statusMessage{*this, "Ready"};

    /// I/O queue. True without a device, and when the keyboard answers the query with at least 8 bytes that name it.
    [[nodiscard]] bool performHandshake();

    /// Puts the keyboard into an effect. Absent values stay as published. Speed and brightness are levels, sent as
    /// given; outside 0 to 255 they end the process once a keyboard is to receive them. The per-key effects upload
    /// the keys' own colours instead.
    void setLightingMode(std::int64_t modeId, std::optional<std::int64_t> speedLevel = std::nullopt,
                         std::optional<std::int64_t> brightnessLevel = std::nullopt,
                         std::optional<ColorBytes> color = std::nullopt);

    void triggerBurstMode(ColorBytes color, std::int64_t speedLevel = 3, std::int64_t brightnessLevel = 4);

    /// Uploads colours by LED number and switches to the effect that shows them.
    void setPerKeyRGB(LedColors colors);

    /// Follows the music: the mean of the bands becomes a brightness of 1 to 4, sent only where it differs from the
    /// published one. Silent, whether it succeeds or not.
    void streamAudioVisualizerFrame(std::span<const std::uint8_t> frequencyBands);

    /// The time in which a key's bouncing counts as one press, cut to whole tens of milliseconds from 0 to 40. Silent
    /// without a keyboard and when it does not answer.
    void setDebounce(std::int64_t ms);

    /// Lighting and debounce as this program begins with them. The keyboard has no command of its own for that.
    void factoryReset();

    /// A whole report with the key table, or none.
    using KeyTableCompletion = std::function<void(const std::optional<std::vector<std::uint8_t>>& table)>;

    /// Reads the key table: the keyboard's answer of 512 to 520 bytes, or none when it fails. Completes on the main
    /// queue; without a keyboard on the I/O queue, with the known table: the last one read, or written by
    /// `setKeyRemap`.
    void readKeyRemapTable(KeyTableCompletion completion);

    /// Gives one place of the key matrix a code of exactly four bytes; any other count is ignored. Reads the table
    /// first unless one is known. Silent without a keyboard, after a failed read and for a place outside the table.
    void setKeyRemap(std::int64_t matrixPos, const std::vector<std::uint8_t>& codeBytes);

    /// The same with the four bytes in one number, most significant first.
    void setKeyRemap(std::int64_t matrixPos, std::uint32_t hidCode);

    /// Writes a whole table under our own header; shorter than 520 bytes, it is filled up with zeros. The known table
    /// stays as it is.
    void setKeyRemapTable(std::vector<std::uint8_t> keyMatrixData);

    /// Any thread. The steps as the firmware keeps a macro; those that find no room are left out. Sends nothing.
    [[nodiscard]] static MacroImage compileMacro(std::span<const MacroEvent> events);

private:
    void deviceMatched(const std::shared_ptr<HidDevice>& device);
    void deviceRemoved(const std::shared_ptr<HidDevice>& device);
    void checkConnectedDevices();
    void postStatus(std::string text);
    void writeKey(std::int64_t matrixPos, const KeyCode& code);

    MainQueue m_main;
    IoQueue m_io;
    HidManager& m_manager;
    std::function<PerKeyColors&()> m_perKeyColors;
    Print m_print;
    HeldDevice m_device;
    std::optional<std::vector<std::uint8_t>> m_cachedKeyMatrix;  // I/O queue; the known key table
};

}  // namespace lumo
