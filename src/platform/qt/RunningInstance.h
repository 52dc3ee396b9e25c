// The running program as others see it on the session bus: its name, and an object that can be activated.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <functional>

namespace lumo {

/// Main thread. The name goes with the process, also where that is killed or hangs on its last report.
class RunningInstance final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit RunningInstance(QDBusConnection bus, QObject* parent = nullptr);

    /// True when the name is ours from now on, or there is no bus. False when another process has it and took the
    /// activation. Waits while another one has it and takes none: it is starting or about to end.
    [[nodiscard]] bool claim();

    void whenStartedAgain(std::function<void()> comeToFront);

    /// Keeps the name and takes no activation any more.
    void letGo();

    /// The one call of the interface that has a meaning here; called by the bus.
    // NOLINTNEXTLINE(readability-identifier-naming): the interface's own name
    Q_SLOT Q_SCRIPTABLE void Activate(const QVariantMap& platformData);

private:
    [[nodiscard]] bool activateOther() const;

    QDBusConnection m_bus;
    std::function<void()> m_comeToFront;
};

}  // namespace lumo
