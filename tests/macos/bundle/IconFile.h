// The pictures in an icon file of macOS.
#pragma once

#include <QImage>
#include <QString>
#include <map>
#include <string>

namespace lumo::test {

/// By their kind, the four letters before each. Empty when the lengths in the file do not agree with it; a picture that
/// is no PNG is null.
[[nodiscard]] std::map<std::string, QImage> picturesOf(const QString& iconFile);

}  // namespace lumo::test
