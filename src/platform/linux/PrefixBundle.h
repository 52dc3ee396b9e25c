// Resources below an installation prefix: PREFIX/bin has the program, PREFIX/share/vexa-lumo-65 its files.
#pragma once

#include <filesystem>

#include "platform/Bundle.h"

namespace lumo {

/// Looks once where the program lies. A build tree has no such folder beside its programs, and so no resources.
class PrefixBundle final : public Bundle {
public:
    explicit PrefixBundle(const std::filesystem::path& executable);

    [[nodiscard]] std::optional<std::string> pathForResource(std::string_view name) const override;
    [[nodiscard]] std::optional<std::string> resourceDirectory() const override { return m_directory; }

private:
    std::optional<std::string> m_directory;
};

}  // namespace lumo
