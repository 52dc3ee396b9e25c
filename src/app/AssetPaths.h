// Where artwork may lie, in the order in which it is looked for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lumo {

/// Below the program's resources. `name` has no white space around it; the folders of one picture size are searched
/// for its last component only.
[[nodiscard]] std::vector<std::string> assetPathsInResources(std::string_view directory, std::string_view name);

/// In a working copy, of the whole repository or of its asset folder's parent.
[[nodiscard]] std::vector<std::string> assetPathsInWorkingCopy(std::string_view directory, std::string_view name);

}  // namespace lumo
