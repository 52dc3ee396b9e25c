// An I/O thread that is always ahead of the main one: a task has run when the call that posts it returns.
#pragma once

#include "foundation/RunLoop.h"

namespace lumo::test {

class FasterIoThread final : public BlockingExecutor {
public:
    void post(Task task) override { task(); }
    void pause(Duration) override {}
    [[nodiscard]] bool isStopping() const override { return false; }
    void stop() override {}
    void finish() override {}
};

}  // namespace lumo::test
