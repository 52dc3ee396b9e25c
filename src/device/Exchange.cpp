#include "device/Exchange.h"

#include <algorithm>

#include "device/Report.h"

namespace lumo {

bool Exchange::sendReport(std::span<const std::uint8_t> data) const {
    if (!m_device || m_io.run.isStopping()) return false;
    if (data.size() >= kReportSize) return m_device->setFeatureReport(kReportId, data);
    return m_device->setFeatureReport(kReportId, paddedReport(data));
}

std::vector<std::uint8_t> Exchange::recvReport() const {
    if (!m_device || m_io.run.isStopping()) return {};
    std::vector<std::uint8_t> buffer(kReportSize, 0);
    buffer[0] = kReportId;
    const auto received = m_device->getFeatureReport(kReportId, buffer);
    buffer.resize(std::min(kReportSize, received.value_or(0)));
    return buffer;
}

std::vector<std::uint8_t> Exchange::query(std::span<const std::uint8_t> request, Duration wait) const {
    (void)sendReport(request);
    pause(wait);
    return recvReport();
}

std::vector<std::uint8_t> Exchange::queryAccepted(std::span<const std::uint8_t> request, Duration wait) const {
    if (!sendReport(request)) return {};
    pause(wait);
    return recvReport();
}

}  // namespace lumo
