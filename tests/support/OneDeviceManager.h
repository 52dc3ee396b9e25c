// A system with one interface, there from the start and for ever.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/Hid.h"

namespace lumo::test {

class OneDeviceManager final : public HidManager {
public:
    explicit OneDeviceManager(std::shared_ptr<HidDevice> device) : m_device(std::move(device)) {}

    void setDeviceMatching(std::vector<HidMatch>) override {}
    void onMatched(Callback) override {}
    void onRemoved(Callback) override {}
    bool open() override { return true; }
    std::vector<std::shared_ptr<HidDevice>> devices() override { return {m_device}; }

private:
    std::shared_ptr<HidDevice> m_device;
};

}  // namespace lumo::test
