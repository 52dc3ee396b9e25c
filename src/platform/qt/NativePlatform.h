// The operating system as it is, over Qt's event loop.
#pragma once

#include "platform/NativeBundle.h"
#include "platform/Platform.h"
#include "platform/qt/QtRunLoop.h"

namespace lumo {

/// Created on the main thread after the application object.
class NativePlatform final : public Platform {
public:
    MainQueue mainQueue() override { return {m_runLoop}; }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) override;
    std::unique_ptr<HidManager> makeHidManager(IoQueue io) override;
    Bundle& bundle() override { return *m_bundle; }
    void print(std::string_view line) override;

private:
    QtRunLoop m_runLoop;
    std::unique_ptr<Bundle> m_bundle = makeNativeBundle();
};

}  // namespace lumo
