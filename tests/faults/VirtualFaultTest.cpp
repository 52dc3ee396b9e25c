// The whole matrix in virtual time, over the in-process keyboard.
#include <gtest/gtest.h>

#include <chrono>

#include "faults/FaultPlay.h"
#include "support/TestPlatform.h"

namespace lumo::test {
namespace {

using namespace std::chrono_literals;

class VirtualFaultBench final : public FaultBench {
public:
    SharedObjects& objects() override { return m_objects; }
    void plug() override { m_platform.hid().plugKeyboard(); }
    void unplug() override { m_platform.hid().unplugAll(); }
    void plugAnother() override { m_platform.hid().plug({{0x3554, 0xFA09}, 520, "The other"}); }
    void tellFault(const std::string& line) override { m_platform.firmware.addFault(vk::parseFault(line).value()); }
    void clearFaults() override { m_platform.firmware.clearFaults(); }
    std::size_t transfers() override { return m_platform.firmware.transfers(); }
    std::vector<std::uint8_t> keyTable() override {
        return {m_platform.firmware.keyTable().begin(), m_platform.firmware.keyTable().end()};
    }

    void when(std::size_t transfers, std::function<void()> act) override {
        m_platform.time.at(1ms, [this, transfers, act] {
            if (m_platform.firmware.transfers() >= transfers) return act();
            when(transfers, act);
        });
    }
    bool runUntil(const std::function<bool()>& holds) override {
        m_platform.time.settle();
        return holds();
    }

private:
    TestPlatform m_platform;
    SharedObjects m_objects{m_platform};
};

class VirtualFault : public testing::TestWithParam<FaultCase> {};

TEST_P(VirtualFault, EndsAsPredicted) {
    VirtualFaultBench bench;
    for (const std::string& wrong : play(bench, GetParam())) ADD_FAILURE() << wrong;
}

std::string testName(const testing::TestParamInfo<FaultCase>& info) {
    std::string name;
    for (const char letter : info.param.name()) {
        if (std::isalnum(static_cast<unsigned char>(letter)) != 0) {
            name += letter;
        } else if (!name.empty() && name.back() != '_') {
            name += '_';
        }
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Of, VirtualFault, testing::ValuesIn(allFaultCases()), testName);

}  // namespace

void PrintTo(const FaultCase& faultCase, std::ostream* out) { *out << faultCase.name(); }

}  // namespace lumo::test
