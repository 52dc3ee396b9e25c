#include "platform/linux/ReportDescriptor.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <vector>

namespace lumo {
namespace {

// The prefix byte without its two size bits, as the HID standard lists the short items.
constexpr std::uint8_t kFeature = 0xB0;
constexpr std::uint8_t kReportSize = 0x74;
constexpr std::uint8_t kReportId = 0x84;
constexpr std::uint8_t kReportCount = 0x94;
constexpr std::uint8_t kPush = 0xA4;
constexpr std::uint8_t kPop = 0xB4;
constexpr std::uint8_t kLongItem = 0xFE;  // the whole prefix byte

// Linux itself stops at four; a descriptor that nests deeper than this is not a description any more.
constexpr std::size_t kDeepestPush = 16;

struct Item {
    std::uint8_t prefix = 0;
    std::uint32_t value = 0;  // little-endian on the wire; sizes, counts and ids are unsigned
};

/// Cuts the bytes into items. Long items carry nothing the standard defines, so they are stepped over.
class ItemReader final {
public:
    explicit ItemReader(std::span<const std::uint8_t> bytes) : m_rest(bytes) {}

    std::optional<Item> next() {
        while (!m_rest.empty() && m_rest[0] == kLongItem) {
            constexpr std::size_t kHeader = 3;  // prefix, data size, tag
            if (m_rest.size() < kHeader || m_rest.size() - kHeader < m_rest[1]) return std::nullopt;
            m_rest = m_rest.subspan(kHeader + m_rest[1]);
        }
        return m_rest.empty() ? std::nullopt : shortItem();
    }

private:
    std::optional<Item> shortItem() {
        constexpr std::array<std::size_t, 4> kDataSizes{0, 1, 2, 4};
        const std::size_t size = kDataSizes[m_rest[0] & 0x03U];
        if (m_rest.size() - 1 < size) return std::nullopt;
        Item item{static_cast<std::uint8_t>(m_rest[0] & 0xFCU), 0};
        for (std::size_t i = size; i > 0; --i) item.value = (item.value << 8U) | m_rest[i];
        m_rest = m_rest.subspan(1 + size);
        return item;
    }

    std::span<const std::uint8_t> m_rest;
};

/// Adds up the feature items of each report id.
class FeatureSizes final {
public:
    /// False when the walk must end here.
    bool take(const Item& item) {
        switch (item.prefix) {
            case kReportSize:
                m_now.bitsPerField = item.value;
                return true;
            case kReportCount:
                m_now.fields = item.value;
                return true;
            case kReportId:
                return setReportId(item.value);
            case kPush:
                return push();
            case kPop:
                return pop();
            case kFeature:
                addFeature();
                return true;
            default:
                return true;  // local items and the other main and global ones do not change a size
        }
    }

    [[nodiscard]] std::optional<std::int64_t> largest() const {
        if (!m_anyFeature) return std::nullopt;
        const std::uint64_t bits = *std::max_element(m_bits.begin(), m_bits.end());
        const std::uint64_t bytes = bits / 8 + (bits % 8 != 0 ? 1 : 0);
        return static_cast<std::int64_t>(bytes) + (m_usesReportIds ? 1 : 0);
    }

private:
    struct Globals {  // the report id is one of them: Pop brings back the old one
        std::uint32_t bitsPerField = 0;
        std::uint32_t fields = 0;
        std::uint8_t reportId = 0;
    };

    bool setReportId(std::uint32_t id) {
        if (id == 0 || id > std::numeric_limits<std::uint8_t>::max()) return false;
        m_now.reportId = static_cast<std::uint8_t>(id);
        m_usesReportIds = true;
        return true;
    }

    bool push() {
        if (m_pushed.size() == kDeepestPush) return false;
        m_pushed.push_back(m_now);
        return true;
    }

    bool pop() {
        if (m_pushed.empty()) return false;
        m_now = m_pushed.back();
        m_pushed.pop_back();
        return true;
    }

    void addFeature() {
        const std::uint64_t bits = std::uint64_t{m_now.bitsPerField} * m_now.fields;  // 32 by 32 bits: cannot overflow
        std::uint64_t& sum = m_bits[m_now.reportId];
        sum += std::min(bits, std::numeric_limits<std::uint64_t>::max() - sum);
        m_anyFeature = true;
    }

    Globals m_now;
    std::vector<Globals> m_pushed;
    std::array<std::uint64_t, 256> m_bits{};  // by report id; 0 where the interface uses none
    bool m_anyFeature = false;
    bool m_usesReportIds = false;
};

}  // namespace

std::optional<std::int64_t> largestFeatureReport(std::span<const std::uint8_t> descriptor) {
    ItemReader items(descriptor);
    FeatureSizes sizes;
    while (const auto item = items.next()) {
        if (!sizes.take(*item)) break;
    }
    return sizes.largest();
}

}  // namespace lumo
