// What the desktop says about motion, over the settings portal on the session bus.
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QThread>
#include <functional>
#include <memory>

namespace lumo {

/// Main thread, one at a time. Nothing here waits: a thread of its own connects, since a bus may not answer, and what
/// the portal says comes some turns later. Without a portal or such a setting nothing is reduced, and no word is said
/// about it.
class MotionPreference final : public QObject {
    Q_OBJECT
public:
    using Connect = std::function<QDBusConnection()>;

    explicit MotionPreference(Connect connectToBus, QObject* parent = nullptr);
    MotionPreference(const MotionPreference&) = delete;
    MotionPreference& operator=(const MotionPreference&) = delete;
    ~MotionPreference() override;

    [[nodiscard]] bool isReduced() const { return m_asksForLess || m_animationsAreOff; }

    /// Of the one there is; false without one.
    [[nodiscard]] static bool currentIsReduced();

private:
    Q_SLOT void take(const QString& group, const QString& key, const QDBusVariant& value);
    void listen(QDBusConnection bus);
    void ask(const QDBusConnection& bus);

    const std::unique_ptr<QThread> m_connecting;
    bool m_asksForLess = false;
    bool m_animationsAreOff = false;
};

}  // namespace lumo
