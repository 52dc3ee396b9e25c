#include "gui/SettingsPortal.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QFile>
#include <stdexcept>

namespace lumo::test {
namespace {

constexpr auto kPortalsConnection = "portal";  // Qt's names, which the bus does not know
constexpr auto kProgramsConnection = "program";
constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.Settings";

constexpr auto kOnlyWhatIsRegistered = R"(<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>)";

}  // namespace

PrivateBus::PrivateBus() {
    QFile configuration(m_folder.filePath("bus.conf"));
    if (!configuration.open(QFile::WriteOnly)) throw std::runtime_error("no folder for the bus");
    configuration.write(QString(kOnlyWhatIsRegistered).arg(m_folder.path()).toUtf8());
    configuration.close();
    m_daemon.setProcessChannelMode(QProcess::MergedChannels);
    m_daemon.start("dbus-daemon", {"--nofork", "--print-address", "--config-file=" + configuration.fileName()});
    if (m_daemon.waitForReadyRead()) m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    if (!m_address.startsWith("unix:")) throw std::runtime_error("no bus: " + m_address.toStdString());
}

PrivateBus::~PrivateBus() {
    QDBusConnection::disconnectFromBus(kProgramsConnection);
    stop();
}

std::function<QDBusConnection()> PrivateBus::connect() const {
    return [address = m_address] { return QDBusConnection::connectToBus(address, kProgramsConnection); };
}

void PrivateBus::stop() {
    m_daemon.kill();
    m_daemon.waitForFinished();
}

SettingsPortal::SettingsPortal(const PrivateBus& bus)
    : m_connection(QDBusConnection::connectToBus(bus.address(), kPortalsConnection)) {
    qDBusRegisterMetaType<Settings>();
}

SettingsPortal::~SettingsPortal() { QDBusConnection::disconnectFromBus(kPortalsConnection); }

QDBusMessage SettingsPortal::question(const QStringList& groups) {
    return QDBusMessage::createMethodCall(kService, kPath, kInterface, "ReadAll") << groups;
}

bool SettingsPortal::open() {
    return m_connection.registerVirtualObject(kPath, this) && m_connection.registerService(kService);
}

void SettingsPortal::announce(const QString& group, const QString& key, const QVariant& value) {
    QDBusMessage news = QDBusMessage::createSignal(kPath, kInterface, "SettingChanged");
    news << group << key << QVariant::fromValue(QDBusVariant(value));
    m_connection.send(news);
}

QString SettingsPortal::introspect(const QString&) const { return {}; }

bool SettingsPortal::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.interface() != kInterface || message.member() != "ReadAll" || message.signature() != "as") return false;
    ++m_questions;
    Settings asked;
    for (const QString& group : message.arguments().constFirst().toStringList())
        if (m_settings.contains(group)) asked[group] = m_settings[group];
    return connection.send(message.createReply(QVariant::fromValue(asked)));
}

}  // namespace lumo::test
