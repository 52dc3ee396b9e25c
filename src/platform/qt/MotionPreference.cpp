#include "platform/qt/MotionPreference.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QMap>
#include <utility>

namespace lumo {
namespace {

constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.Settings";
constexpr auto kAppearance = "org.freedesktop.appearance";
constexpr auto kGnomeInterface = "org.gnome.desktop.interface";

const MotionPreference* theCurrent = nullptr;

using Settings = QMap<QString, QVariantMap>;  // by group and key

Settings settingsOf(const QDBusMessage& answer) {
    return answer.signature() == "a{sa{sv}}" ? qdbus_cast<Settings>(answer.arguments().constFirst()) : Settings();
}

bool isFalse(const QVariant& value) { return value.typeId() == QMetaType::Bool && !value.toBool(); }

}  // namespace

MotionPreference::MotionPreference(Connect connectToBus, QObject* parent)
    : QObject(parent), m_connecting(QThread::create([this, connect = std::move(connectToBus)] { listen(connect()); })) {
    theCurrent = this;
    m_connecting->start();
}

MotionPreference::~MotionPreference() {
    m_connecting->wait();
    theCurrent = nullptr;
}

bool MotionPreference::currentIsReduced() { return theCurrent && theCurrent->isReduced(); }

/// On the connecting thread, since Qt waits for the bus here too. Listens before it asks: no change is missed.
void MotionPreference::listen(QDBusConnection bus) {
    if (!bus.isConnected()) return;
    qRegisterMetaType<QDBusVariant>();  // or Qt does not know the slot's last argument by its name
    bus.connect(kService, kPath, kInterface, "SettingChanged", this, SLOT(take(QString, QString, QDBusVariant)));
    QMetaObject::invokeMethod(
        this, [this, bus] { ask(bus); }, Qt::QueuedConnection);
}

void MotionPreference::ask(const QDBusConnection& bus) {
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, "ReadAll");
    question << QStringList{kAppearance, kGnomeInterface};
    auto* const pending = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending] {
        pending->deleteLater();
        const Settings settings = settingsOf(pending->reply());
        for (auto group = settings.begin(); group != settings.end(); ++group) {
            for (auto entry = group->begin(); entry != group->end(); ++entry)
                take(group.key(), entry.key(), QDBusVariant(entry.value()));
        }
    });
}

void MotionPreference::take(const QString& group, const QString& key, const QDBusVariant& value) {
    const QVariant plain = value.variant();
    if (group == kAppearance && key == "reduced-motion") m_asksForLess = plain.toUInt() == 1;
    if (group == kGnomeInterface && key == "enable-animations") m_animationsAreOff = isFalse(plain);
}

}  // namespace lumo
