// Reading and writing what the keys do.
#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

#include "device/VexaProtocol.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

/// Absent when the keyboard refuses the request or does not answer it with a table.
std::optional<std::vector<std::uint8_t>> readTable(const Exchange& exchange) {
    auto answer = exchange.queryAccepted(kKeyTableRead, 30ms);
    if (!isKeyTable(answer)) return std::nullopt;
    return answer;
}

}  // namespace

void VexaProtocol::readKeyRemapTable(KeyTableCompletion completion) {
    m_io.run.post([this, completion = std::move(completion)] {
        const Exchange exchange(m_io, m_device.get());
        if (!exchange.hasDevice()) return completion(m_cachedKeyMatrix);
        auto table = readTable(exchange);
        if (table) m_cachedKeyMatrix = table;
        m_main.run.post([completion, table = std::move(table)] { completion(table); });
    });
}

void VexaProtocol::setKeyRemap(std::int64_t matrixPos, const std::vector<std::uint8_t>& codeBytes) {
    KeyCode code{};
    if (codeBytes.size() != code.size()) return;
    std::ranges::copy(codeBytes, code.begin());
    m_io.run.post([this, matrixPos, code] { writeKey(matrixPos, code); });
}

void VexaProtocol::setKeyRemap(std::int64_t matrixPos, std::uint32_t hidCode) {
    setKeyRemap(matrixPos, {static_cast<std::uint8_t>(hidCode >> 24), static_cast<std::uint8_t>(hidCode >> 16),
                            static_cast<std::uint8_t>(hidCode >> 8), static_cast<std::uint8_t>(hidCode)});
}

void VexaProtocol::writeKey(std::int64_t matrixPos, const KeyCode& code) {
    const Exchange exchange(m_io, m_device.get());
    if (!exchange.hasDevice()) return;
    if (!m_cachedKeyMatrix) m_cachedKeyMatrix = readTable(exchange);
    if (!m_cachedKeyMatrix) return;
    auto changed = keyTableWith(*m_cachedKeyMatrix, matrixPos, code);
    if (!changed) return;
    if (!exchange.sendReport(*changed)) return postStatus("Key remap write failed");
    m_cachedKeyMatrix = std::move(changed);
    postStatus("Key position " + std::to_string(matrixPos) + " programmed");
}

void VexaProtocol::setKeyRemapTable(std::vector<std::uint8_t> keyMatrixData) {
    m_io.run.post([this, data = std::move(keyMatrixData)] {
        const Exchange exchange(m_io, m_device.get());
        if (!exchange.hasDevice()) return postStatus("Key Remap Matrix Programmed (Simulated)");
        const bool accepted = exchange.sendReport(keyTableWrite(data));
        postStatus(accepted ? "Key Remap Matrix Programmed"
                            : "Key Remap write failed");  // unlike the one above: "Remap"
    });
}

}  // namespace lumo
