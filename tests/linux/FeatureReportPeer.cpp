#include "linux/FeatureReportPeer.h"

#include <linux/hidraw.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace lumo::test {

FeatureReportPeer::FeatureReportPeer() : m_handler(umockdev_ioctl_base_new()) {
    g_signal_connect(m_handler.get(), "handle-ioctl", G_CALLBACK(&FeatureReportPeer::handle), this);
}

FeatureReportPeer::~FeatureReportPeer() { g_signal_handlers_disconnect_by_data(m_handler.get(), this); }

void FeatureReportPeer::answerWith(Bytes bytes) {
    const std::lock_guard lock(m_mutex);
    m_answer = std::move(bytes);
}

void FeatureReportPeer::failWith(int error) {
    const std::lock_guard lock(m_mutex);
    m_error = error;
}

void FeatureReportPeer::acceptOnly(int count) {
    const std::lock_guard lock(m_mutex);
    m_accepted = count;
}

int FeatureReportPeer::requests() const {
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

std::vector<FeatureReportPeer::Bytes> FeatureReportPeer::sets() const {
    const std::lock_guard lock(m_mutex);
    return m_sets;
}

std::vector<FeatureReportPeer::Get> FeatureReportPeer::gets() const {
    const std::lock_guard lock(m_mutex);
    return m_gets;
}

gboolean FeatureReportPeer::handle(UMockdevIoctlBase* /*handler*/, UMockdevIoctlClient* client,
                                   gpointer self) noexcept {
    static_cast<FeatureReportPeer*>(self)->answer(client);
    return TRUE;
}

void FeatureReportPeer::answer(UMockdevIoctlClient* client) {
    {
        const std::lock_guard lock(m_mutex);
        ++m_requests;
    }
    const unsigned long request = umockdev_ioctl_client_get_request(client);
    const gsize size = _IOC_SIZE(request);
    UMockdevIoctlData* const data =
        umockdev_ioctl_data_resolve(umockdev_ioctl_client_get_arg(client), 0, size, nullptr);
    if (!data) return umockdev_ioctl_client_complete(client, -1, EFAULT);
    Bytes bytes(data->data, data->data + size);
    const int result = exchange(request, bytes);
    if (result > 0) umockdev_ioctl_data_update(data, 0, bytes.data(), static_cast<gint>(bytes.size()));
    umockdev_ioctl_data_unref(data);
    umockdev_ioctl_client_complete(client, result < 0 ? -1 : result, result < 0 ? -result : 0);
}

/// Returns the count that the kernel reports, or a negative errno.
int FeatureReportPeer::exchange(unsigned long request, Bytes& bytes) {
    const std::lock_guard lock(m_mutex);
    if (request == HIDIOCSFEATURE(bytes.size())) {
        m_sets.push_back(bytes);
        if (m_error != 0) return -m_error;
        return m_accepted >= 0 ? m_accepted : static_cast<int>(bytes.size());
    }
    if (request != HIDIOCGFEATURE(bytes.size())) return -ENOTTY;
    m_gets.push_back({bytes.at(0), bytes.size()});
    if (m_error != 0) return -m_error;
    const std::size_t count = std::min(bytes.size(), m_answer.size());
    std::copy_n(m_answer.begin(), count, bytes.begin());
    return static_cast<int>(count);
}

}  // namespace lumo::test
