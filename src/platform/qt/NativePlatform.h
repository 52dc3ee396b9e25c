// The operating system as it is, over Qt's event loop.
#pragma once

#include "platform/Platform.h"
#include "platform/qt/QtRunLoop.h"

namespace lumo {

/// Created on the main thread after the application object.
class NativePlatform final : public Platform {
public:
    MainQueue mainQueue() override { return {m_runLoop}; }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) override;
    std::unique_ptr<HidManager> makeHidManager(IoQueue io) override;
    void print(std::string_view line) override;

private:
    QtRunLoop m_runLoop;
};

}  // namespace lumo
