// Loads a picture from a file that may hold anything.
#pragma once

#include <QByteArray>
#include <QImage>
#include <string>

namespace lumo {

/// What is in the file. Empty when it is missing, or claims to hold a picture larger than any of ours. Any thread.
[[nodiscard]] QByteArray imageFileBytes(const std::string& path);

/// Null when they are no picture, or a damaged or too large one. Nothing is said about it on the console. Any thread.
[[nodiscard]] QImage decodedImage(QByteArray bytes);

}  // namespace lumo
