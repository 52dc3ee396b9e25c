// Text from a device or a user, made safe to show.
#pragma once

#include <QString>
#include <string_view>

namespace lumo {

/// Code points kept of one text; longer ones end in an ellipsis.
inline constexpr qsizetype kLongestText = 1024;

/// Any thread. The text without control characters, line breaks and the marks that turn the direction of writing
/// around. Bytes that are no UTF-8 become the replacement character.
[[nodiscard]] QString plainText(std::string_view untrustedUtf8);

}  // namespace lumo
