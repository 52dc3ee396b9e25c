// What every entry point does once it has a platform.
#pragma once

class QApplication;

namespace lumo {

class Platform;

/// Main thread. Runs the program until it quits, and ends the process with the event loop's status, 0.
/// Nothing is destroyed on the way out: a report that hangs in the system would hold the process.
[[noreturn]] void runProgram(QApplication& application, Platform& platform);

}  // namespace lumo
