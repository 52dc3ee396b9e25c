#include "uhid/UhidKeyboard.h"

#include <utility>

#include "daemon/ReportDescriptors.h"

namespace lumo::vk {
namespace {

bool isConfigurationReport(std::uint8_t number, std::uint8_t type) {
    return number == kConfigurationReportId && type == UHID_FEATURE_REPORT;
}

std::span<const std::uint8_t> dataOf(const uhid_set_report_req& request) { return {request.data, request.size}; }

}  // namespace

UhidKeyboard::UhidKeyboard(DaemonOptions options, LoggedFirmware& firmware)
    : m_options(std::move(options)), m_firmware(firmware) {}

void UhidKeyboard::plug() {
    auto typing = std::make_unique<UhidInterface>(m_options, 0, kTypingReports);
    m_configuration = std::make_unique<UhidInterface>(m_options, 1, kConfigurationReports);
    m_typing = std::move(typing);
}

void UhidKeyboard::unplug() {
    m_configuration.reset();
    m_typing.reset();
}

std::vector<int> UhidKeyboard::descriptors() const {
    if (!m_typing) return {};
    return {m_typing->descriptor(), m_configuration->descriptor()};
}

void UhidKeyboard::serve(int descriptor) {
    const bool isTyping = descriptor == m_typing->descriptor();
    const auto event = (isTyping ? m_typing : m_configuration)->next();
    if (!event) return;
    if (isTyping) {
        serveTyping(*event);
    } else {
        serveConfiguration(*event);
    }
}

void UhidKeyboard::serveTyping(const uhid_event& event) {
    if (event.type == UHID_SET_REPORT) setOfTyping(event.u.set_report);
    if (event.type == UHID_GET_REPORT) getOf(*m_typing, event.u.get_report.id, m_firmware.refuseGet());
}

void UhidKeyboard::setOfTyping(const uhid_set_report_req& request) {
    const bool isLeds = request.rtype == UHID_OUTPUT_REPORT;
    setOf(*m_typing, request.id, isLeds ? Outcome::answered : m_firmware.refuseSet(dataOf(request)));
}

void UhidKeyboard::serveConfiguration(const uhid_event& event) {
    if (event.type == UHID_SET_REPORT) set(event.u.set_report);
    if (event.type == UHID_GET_REPORT) get(event.u.get_report);
}

void UhidKeyboard::set(const uhid_set_report_req& request) {
    const bool isKnown = isConfigurationReport(request.rnum, request.rtype);
    setOf(*m_configuration, request.id,
          isKnown ? m_firmware.set(dataOf(request)) : m_firmware.refuseSet(dataOf(request)));
}

void UhidKeyboard::get(const uhid_get_report_req& request) {
    // The kernel does not pass on how much the program asked for: it shortens the answer itself.
    const bool isKnown = isConfigurationReport(request.rnum, request.rtype);
    getOf(*m_configuration, request.id, isKnown ? m_firmware.get(UHID_DATA_MAX) : m_firmware.refuseGet());
}

void UhidKeyboard::setOf(const UhidInterface& interface, std::uint32_t request, Outcome outcome) {
    switch (outcome) {
        case Outcome::answered:
            return interface.answerSet(request, true);
        case Outcome::refused:
            return interface.answerSet(request, false);
        case Outcome::vanished:
            return unplug();
        case Outcome::hung:
            return;  // the kernel gives up by itself
    }
}

void UhidKeyboard::getOf(const UhidInterface& interface, std::uint32_t request, const FirmwareModel::Answer& answer) {
    switch (answer.outcome) {
        case Outcome::answered:
            return interface.answerGet(request, answer.bytes);
        case Outcome::refused:
            return interface.refuseGet(request);
        case Outcome::vanished:
            return unplug();
        case Outcome::hung:
            return;
    }
}

}  // namespace lumo::vk
