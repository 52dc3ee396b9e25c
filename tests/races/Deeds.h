// What can happen to the running program from its main thread.
#pragma once

#include <span>
#include <string_view>

#include "app/SharedObjects.h"
#include "races/RacingPlatform.h"

namespace lumo::test {

struct Stage {
    RacingPlatform& platform;
    SharedObjects& objects;
    Chance& chance;

    [[nodiscard]] VexaProtocol& link() const { return objects.vexaProtocol(); }
    [[nodiscard]] KeyboardModel& keyboard() const { return objects.keyboardModel(); }
};

enum class DeedKind { plugging, fault, command, stateChange };

struct Deed {
    DeedKind kind;
    void (*act)(const Stage& stage);
};

/// All of them, any of which may follow any other.
[[nodiscard]] std::span<const Deed> allDeeds();

}  // namespace lumo::test
