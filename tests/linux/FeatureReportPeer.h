// The device at the other end of HIDIOCSFEATURE and HIDIOCGFEATURE.
// Told what to do by the test's thread, asked by the mock's own thread.
#pragma once

#include <umockdev.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace lumo::test {

class FeatureReportPeer final {
public:
    using Bytes = std::vector<std::uint8_t>;

    FeatureReportPeer();
    ~FeatureReportPeer();
    FeatureReportPeer(const FeatureReportPeer&) = delete;
    FeatureReportPeer& operator=(const FeatureReportPeer&) = delete;

    /// What a get receives; the length is what the kernel reports.
    void answerWith(Bytes bytes);
    /// Every request fails with that errno; 0 ends it.
    void failWith(int error);
    /// A set reports that many bytes as accepted, whatever it was given.
    void acceptOnly(int count);

    /// How many requests came, whatever their number and length.
    [[nodiscard]] int requests() const;
    [[nodiscard]] std::vector<Bytes> sets() const;
    /// The first byte and the length of each get.
    struct Get {
        std::uint8_t reportId;
        std::size_t length;
        bool operator==(const Get&) const = default;
    };
    [[nodiscard]] std::vector<Get> gets() const;

    [[nodiscard]] UMockdevIoctlBase* handler() const { return m_handler.get(); }

private:
    struct Unref {
        void operator()(UMockdevIoctlBase* handler) const { g_object_unref(handler); }
    };
    static gboolean handle(UMockdevIoctlBase* handler, UMockdevIoctlClient* client, gpointer self) noexcept;
    void answer(UMockdevIoctlClient* client);
    [[nodiscard]] int exchange(unsigned long request, Bytes& bytes);

    mutable std::mutex m_mutex;
    Bytes m_answer;
    int m_requests = 0;
    int m_error = 0;
    int m_accepted = -1;
    std::vector<Bytes> m_sets;
    std::vector<Get> m_gets;
    std::unique_ptr<UMockdevIoctlBase, Unref> m_handler;
};

}  // namespace lumo::test
