// Resources that a test sets; none at first, as in a build tree.
#pragma once

#include <atomic>
#include <map>
#include <optional>
#include <string>

#include "platform/Bundle.h"

namespace lumo::test {

class FakeBundle final : public Bundle {
public:
    std::map<std::string, std::string, std::less<>> paths;  // by the resource's name
    std::optional<std::string> directory;
    mutable std::atomic<int> timesAsked = 0;  // by any thread

    [[nodiscard]] std::optional<std::string> pathForResource(std::string_view name) const override {
        ++timesAsked;
        const auto found = paths.find(name);
        return found == paths.end() ? std::nullopt : std::optional(found->second);
    }
    [[nodiscard]] std::optional<std::string> resourceDirectory() const override { return directory; }
};

}  // namespace lumo::test
