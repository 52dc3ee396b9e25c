#include "platform/qt/SessionBus.h"

#include <QFile>
#include <QString>

namespace lumo {

bool hasSessionBus() {
    const QString named = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!named.isEmpty()) return !named.startsWith("autolaunch:");
    return QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

}  // namespace lumo
