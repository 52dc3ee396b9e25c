// The user's preferences in a file of the XDG configuration folder.
#pragma once

#include <QSettings>
#include <QString>
#include <optional>

#include "platform/Preferences.h"

namespace lumo {

/// Main thread. A damaged file counts as an empty one, and is made anew by the next write. A file that nobody may
/// write, or that is no file, leaves the values in memory.
class XdgPreferences final : public Preferences {
public:
    /// The file, and the folders above it, need not exist.
    explicit XdgPreferences(const QString& path);

    bool boolForKey(std::string_view key) override;

    /// The file is replaced as a whole: a reader sees the old one or the new one.
    void setBool(bool value, std::string_view key) override;

private:
    QSettings m_values;
};

}  // namespace lumo
