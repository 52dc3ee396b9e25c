// A session bus of the test's own, and on it a settings portal that says what it is told.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>

namespace lumo::test {

/// A bus that starts no services. Runs until it is destroyed or stopped.
class PrivateBus final {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    [[nodiscard]] const QString& address() const { return m_address; }
    /// For the program under test: one connection, which ends with the bus.
    [[nodiscard]] std::function<QDBusConnection()> connect() const;
    void stop();

private:
    QTemporaryDir m_folder{"/tmp/lumo-bus-XXXXXX"};  // a socket's path must be short
    QProcess m_daemon;
    QString m_address;
};

class SettingsPortal final : public QDBusVirtualObject {
public:
    using Settings = QMap<QString, QVariantMap>;  // by group and key

    /// Answers nobody until it is opened.
    explicit SettingsPortal(const PrivateBus& bus);
    ~SettingsPortal() override;
    SettingsPortal(const SettingsPortal&) = delete;
    SettingsPortal& operator=(const SettingsPortal&) = delete;

    /// What a program asks: all settings of these groups.
    [[nodiscard]] static QDBusMessage question(const QStringList& groups);

    void set(const QString& group, const QString& key, const QVariant& value) { m_settings[group][key] = value; }
    [[nodiscard]] bool open();
    void announce(const QString& group, const QString& key, const QVariant& value);
    [[nodiscard]] int questions() const { return m_questions; }

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QDBusConnection m_connection;
    Settings m_settings;
    int m_questions = 0;
};

}  // namespace lumo::test
