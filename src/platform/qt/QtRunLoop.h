// The main thread's loop, which is Qt's event loop.
#pragma once

#include <QObject>

#include "foundation/RunLoop.h"

namespace lumo {

/// Created and destroyed on the main thread while the application object exists; nothing posts to it any more when it
/// goes. What has not run by then is dropped. Times are kept to the millisecond, never too early.
class QtRunLoop final : public RunLoop {
public:
    void post(Task task) override;
    void postAfter(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Registration> repeatEvery(Duration interval, Task task) override;
    [[nodiscard]] std::unique_ptr<Registration> whenReadable(int descriptor, Task task) override;

private:
    QObject m_context;  // lives on the main thread: what is posted from anywhere runs there
};

}  // namespace lumo
