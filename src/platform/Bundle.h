// The files that were installed with the program.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumo {

/// Main thread. Paths and names in the encoding of the file system.
class Bundle {
public:
    Bundle() = default;
    Bundle(const Bundle&) = delete;
    Bundle& operator=(const Bundle&) = delete;
    virtual ~Bundle() = default;

    /// Where the resource of that file name lies, ending included; absent when there is none. No name, no resource.
    [[nodiscard]] virtual std::optional<std::string> pathForResource(std::string_view name) const = 0;

    /// The folder of the resources, without a slash at its end; absent where the program is not installed.
    [[nodiscard]] virtual std::optional<std::string> resourceDirectory() const = 0;
};

}  // namespace lumo
