// The keyboard as two HID devices of /dev/uhid: typing and configuration.
#pragma once

#include <cstdint>
#include <memory>

#include "daemon/KernelKeyboard.h"
#include "daemon/LoggedFirmware.h"
#include "uhid/UhidInterface.h"

namespace lumo::vk {

/// One thread; the firmware outlives it.
class UhidKeyboard final : public KernelKeyboard {
public:
    UhidKeyboard(DaemonOptions options, LoggedFirmware& firmware);

    void plug() override;
    void unplug() override;
    [[nodiscard]] std::vector<int> descriptors() const override;
    void serve(int descriptor) override;

private:
    void serveTyping(const uhid_event& event);
    void serveConfiguration(const uhid_event& event);
    void set(const uhid_set_report_req& request);
    void get(const uhid_get_report_req& request);
    void setOfTyping(const uhid_set_report_req& request);
    void setOf(const UhidInterface& interface, std::uint32_t request, Outcome outcome);
    void getOf(const UhidInterface& interface, std::uint32_t request, const FirmwareModel::Answer& answer);

    DaemonOptions m_options;
    LoggedFirmware& m_firmware;
    std::unique_ptr<UhidInterface> m_typing;
    std::unique_ptr<UhidInterface> m_configuration;
};

}  // namespace lumo::vk
