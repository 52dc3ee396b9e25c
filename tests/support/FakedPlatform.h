// What a platform offers beside queues and hardware, as doubles.
#pragma once

#include "platform/Platform.h"
#include "support/FakeBundle.h"
#include "support/FakeDesktop.h"
#include "support/FakePreferences.h"
#include "support/FakePrivacy.h"
#include "support/Journal.h"

namespace lumo::test {

class FakedPlatform : public Platform {
public:
    FakeBundle resources;
    Journal journal;  // what was asked of the three below, in order
    FakePrivacy grants{journal};
    FakeDesktop surroundings{journal};
    FakePreferences kept{journal};

    Bundle& bundle() override { return resources; }
    Desktop& desktop() override { return surroundings; }
    Preferences& preferences() override { return kept; }
    Privacy& privacy() override { return grants; }
};

}  // namespace lumo::test
