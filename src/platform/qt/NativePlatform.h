// The operating system as it is, over Qt's event loop.
#pragma once

#include "platform/NativeBundle.h"
#include "platform/NativeDesktop.h"
#include "platform/NativePreferences.h"
#include "platform/NativePrivacy.h"
#include "platform/Platform.h"
#include "platform/qt/QtRunLoop.h"

namespace lumo {

/// Created on the main thread after the application object.
class NativePlatform final : public Platform {
public:
    NativePlatform();

    MainQueue mainQueue() override { return {m_runLoop}; }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) override;
    std::unique_ptr<HidManager> makeHidManager(IoQueue io) override;
    Bundle& bundle() override { return *m_bundle; }
    Desktop& desktop() override { return *m_desktop; }
    Preferences& preferences() override { return *m_preferences; }
    Privacy& privacy() override { return *m_privacy; }
    void print(std::string_view line) override;

private:
    QtRunLoop m_runLoop;
    std::unique_ptr<Bundle> m_bundle = makeNativeBundle();
    std::unique_ptr<Desktop> m_desktop = makeNativeDesktop();
    std::unique_ptr<Preferences> m_preferences = makeNativePreferences();
    std::unique_ptr<Privacy> m_privacy = makeNativePrivacy();
};

}  // namespace lumo
