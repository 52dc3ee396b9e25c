// Loads a picture from a file that may hold anything.
#pragma once

#include <QImage>
#include <string>

namespace lumo {

/// Null when the file is missing, damaged, no picture, or a picture that claims to be larger than any of ours. Nothing
/// is said about it on the console. Main thread.
[[nodiscard]] QImage loadImageFile(const std::string& path);

}  // namespace lumo
