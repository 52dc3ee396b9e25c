#include "platform/qt/NativePlatform.h"

#include <csignal>
#include <cstdio>
#include <string>

#include "foundation/SerialQueue.h"
#include "platform/IoThread.h"
#include "platform/NativeHid.h"

namespace lumo {

// Whoever read the console may be gone: the line is lost then, not the program.
NativePlatform::NativePlatform() { std::signal(SIGPIPE, SIG_IGN); }

std::unique_ptr<BlockingExecutor> NativePlatform::makeIoQueue(std::string_view label) {
    return std::make_unique<SerialQueue>([name = std::string(label)] { prepareIoThread(name); });
}

std::unique_ptr<HidManager> NativePlatform::makeHidManager(IoQueue io) {
    return makeNativeHidManager(mainQueue(), io, [this](std::string_view line) { print(line); });
}

void NativePlatform::print(std::string_view line) {
    const std::string withEnd = std::string(line) + '\n';  // one call a line: no other thread's text comes between
    std::fwrite(withEnd.data(), 1, withEnd.size(), stdout);
    std::fflush(stdout);
}

}  // namespace lumo
