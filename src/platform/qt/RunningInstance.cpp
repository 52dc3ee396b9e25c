#include "platform/qt/RunningInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QThread>
#include <string_view>
#include <utility>

#include "foundation/Identity.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

constexpr auto kInterface = "org.freedesktop.Application";
constexpr auto kPath = "/com/vexalumo/lumo65";
constexpr auto kTokenKey = "activation-token";
constexpr auto kTokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr auto kBetweenTries = 50ms;

QString name() { return QLatin1String(kIdentifier.data(), static_cast<qsizetype>(kIdentifier.size())); }

}  // namespace

RunningInstance::RunningInstance(QDBusConnection bus, QObject* parent) : QObject(parent), m_bus(std::move(bus)) {}

bool RunningInstance::claim() {
    while (m_bus.isConnected()) {
        const auto answer = m_bus.interface()->registerService(name());
        if (answer == QDBusConnectionInterface::ServiceRegistered) return true;
        if (activateOther()) return false;
        QThread::msleep(kBetweenTries.count());
    }
    return true;
}

bool RunningInstance::activateOther() const {
    QDBusMessage call = QDBusMessage::createMethodCall(name(), kPath, kInterface, "Activate");
    call << QVariantMap{{kTokenKey, qEnvironmentVariable(kTokenVariable)}};
    return m_bus.call(call).type() == QDBusMessage::ReplyMessage;
}

void RunningInstance::whenStartedAgain(std::function<void()> comeToFront) {
    m_comeToFront = std::move(comeToFront);
    m_bus.registerObject(kPath, this, QDBusConnection::ExportScriptableSlots);
}

void RunningInstance::letGo() { m_bus.unregisterObject(kPath); }

void RunningInstance::Activate(const QVariantMap& platformData) {
    const QByteArray token = platformData.value(kTokenKey).toString().toUtf8();
    if (!token.isEmpty()) qputenv(kTokenVariable, token);  // where Qt looks for it when the window asks for the focus
    m_comeToFront();
}

}  // namespace lumo
