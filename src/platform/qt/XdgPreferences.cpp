#include "platform/qt/XdgPreferences.h"

#include <QFileInfo>
#include <QStandardPaths>

#include "foundation/Identity.h"
#include "platform/NativePreferences.h"

namespace lumo {
namespace {

constexpr qint64 kLargestFile = 64 * 1024;
constexpr auto kTrue = "true";

QString text(std::string_view latin) { return QLatin1String(latin.data(), static_cast<qsizetype>(latin.size())); }

/// Reading a pipe would wait for its writer, and reading a file without end would never be through.
bool canBeRead(const QString& path) {
    const QFileInfo file(path);
    return !file.exists() || (file.isFile() && file.size() <= kLargestFile);
}

/// A name that no file can have keeps the values in memory.
QString readablePath(const QString& path) { return canBeRead(path) ? path : QString("/dev/null/preferences"); }

}  // namespace

XdgPreferences::XdgPreferences(const QString& path) : m_values(readablePath(path), QSettings::IniFormat) {}

bool XdgPreferences::boolForKey(std::string_view key) { return m_values.value(text(key)).toString() == kTrue; }

void XdgPreferences::setBool(bool value, std::string_view key) {
    m_values.setValue(text(key), value);
    m_values.sync();  // at once: quitting ends the process without another turn of the loop
}

std::unique_ptr<Preferences> makeNativePreferences() {
    return std::make_unique<XdgPreferences>(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                            '/' + text(kProgramName) + "/preferences.ini");
}

}  // namespace lumo
