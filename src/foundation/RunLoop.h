// Where work runs: the main thread's loop and the serial queue that may block on the device.
// Both are handed in from outside, so that tests can put them on one virtual clock.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace lumo {

using Task = std::function<void()>;
using Duration = std::chrono::microseconds;

/// Runs tasks one after the other, in the order in which they were posted.
class Executor {
public:
    Executor() = default;
    Executor(const Executor&) = delete;
    Executor& operator=(const Executor&) = delete;
    virtual ~Executor() = default;

    /// Any thread. Returns at once; the task runs later, never inside this call.
    virtual void post(Task task) = 0;
};

/// Something that goes on until this object is destroyed (main thread only).
class Registration {
public:
    Registration() = default;
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;
    virtual ~Registration() = default;
};

/// The main thread's loop. Everything but `post` is called on the main thread only.
class RunLoop : public Executor {
public:
    /// Runs the task once, no earlier than `delay` from now. Equal times run in posting order.
    virtual void postAfter(Duration delay, Task task) = 0;

    /// Runs the task every `interval`, first after one interval.
    [[nodiscard]] virtual std::unique_ptr<Registration> repeatEvery(Duration interval, Task task) = 0;

    /// Runs the task whenever the descriptor can be read. The descriptor must outlive the registration.
    [[nodiscard]] virtual std::unique_ptr<Registration> whenReadable(int descriptor, Task task) = 0;
};

/// A serial executor on which a task may block and pause.
class BlockingExecutor : public Executor {
public:
    /// Called from a task of this executor: waits. Returns early once the executor is stopping.
    virtual void pause(Duration duration) = 0;

    /// Any thread: true once the program is quitting; a task then starts no further report.
    [[nodiscard]] virtual bool isStopping() const = 0;

    /// Any thread, returns at once: no further task begins, pauses end, what is posted from now on is dropped.
    virtual void stop() = 0;

    /// Not from its own tasks: stops, and waits for the task under way. A quitting program must not wait.
    virtual void finish() = 0;
};

// Two types, so that swapped arguments do not compile.
struct MainQueue {  // owns models and widgets; never blocks
    RunLoop& run;
};
struct IoQueue {  // serial; may block on the device; sees no model and no widget
    BlockingExecutor& run;
};

}  // namespace lumo
