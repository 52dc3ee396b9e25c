// Looks over the PNG pictures in a file before anybody reads them.
#pragma once

#include <string_view>

namespace lumo {

/// Any thread. True when a chunk claims to be longer than the rest of the file, or when there are more pictures than an
/// icon holds. The readers make room for what a chunk claims, up to 2 GiB, before they see that it is not there.
/// Pictures inside others count, too: an icon file may hold some.
[[nodiscard]] bool claimsMorePngThanThereIs(std::string_view file);

}  // namespace lumo
