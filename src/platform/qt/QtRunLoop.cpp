#include "platform/qt/QtRunLoop.h"

#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

namespace lumo {
namespace {

std::chrono::milliseconds roundedUp(Duration duration) {
    return std::chrono::ceil<std::chrono::milliseconds>(duration);
}

/// Ends the source of a task at once. The object itself goes in a later turn: its own task may be what drops it. A loop
/// that goes takes its sources with it, and may drop last what a task that never ran held of them.
template <typename Source>
class SourceRegistration final : public Registration {
public:
    SourceRegistration(Source* source, void (*stop)(Source&)) : m_source(source), m_stop(stop) {}
    SourceRegistration(const SourceRegistration&) = delete;
    SourceRegistration& operator=(const SourceRegistration&) = delete;
    ~SourceRegistration() override {
        if (!m_source) return;
        m_stop(*m_source);
        m_source->disconnect();
        m_source->deleteLater();
    }

private:
    QPointer<Source> m_source;
    void (*m_stop)(Source&);
};

}  // namespace

void QtRunLoop::post(Task task) { QMetaObject::invokeMethod(&m_context, std::move(task), Qt::QueuedConnection); }

void QtRunLoop::postAfter(Duration delay, Task task) {
    QTimer::singleShot(roundedUp(delay), Qt::PreciseTimer, &m_context, std::move(task));
}

std::unique_ptr<Registration> QtRunLoop::repeatEvery(Duration interval, Task task) {
    auto* const timer = new QTimer(&m_context);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, timer, std::move(task));
    timer->start(roundedUp(interval));
    return std::make_unique<SourceRegistration<QTimer>>(timer, [](QTimer& source) { source.stop(); });
}

std::unique_ptr<Registration> QtRunLoop::whenReadable(int descriptor, Task task) {
    auto* const notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, &m_context);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [task = std::move(task)] { task(); });
    return std::make_unique<SourceRegistration<QSocketNotifier>>(
        notifier, [](QSocketNotifier& source) { source.setEnabled(false); });
}

}  // namespace lumo
