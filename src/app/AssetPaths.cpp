#include "app/AssetPaths.h"

#include <array>
#include <span>

namespace lumo {
namespace {

enum class Tail { wholeName, lastComponent };

struct Place {
    std::string_view folder;
    Tail tail;
};

constexpr auto kResourcePlaces = std::to_array<Place>({
    {"/", Tail::wholeName},
    {"/skins/", Tail::wholeName},
    {"/assets/", Tail::wholeName},
    {"/assets/skins/", Tail::wholeName},
    {"/skins/navi50x50/", Tail::lastComponent},
    {"/skins/fun55x55/", Tail::lastComponent},
    {"/skins/other/", Tail::lastComponent},
});

constexpr auto kWorkingCopyPlaces = std::to_array<Place>({
    {"/vexa_lumo_macos/assets/", Tail::wholeName},
    {"/vexa_lumo_macos/assets/skins/", Tail::wholeName},
    {"/vexa_lumo_macos/assets/skins/navi50x50/", Tail::lastComponent},
    {"/vexa_lumo_macos/assets/skins/fun55x55/", Tail::lastComponent},
    {"/vexa_lumo_macos/assets/skins/other/", Tail::lastComponent},
    {"/assets/", Tail::wholeName},
    {"/assets/skins/", Tail::wholeName},
});

std::vector<std::string> pathsIn(std::span<const Place> places, std::string_view directory, std::string_view name) {
    const std::string_view lastComponent = name.substr(name.rfind('/') + 1);  // no slash: npos + 1 is 0
    std::vector<std::string> paths;
    paths.reserve(places.size());
    for (const Place& place : places) {
        std::string& path = paths.emplace_back(directory);
        path.append(place.folder).append(place.tail == Tail::wholeName ? name : lastComponent);
    }
    return paths;
}

}  // namespace

std::vector<std::string> assetPathsInResources(std::string_view directory, std::string_view name) {
    return pathsIn(kResourcePlaces, directory, name);
}

std::vector<std::string> assetPathsInWorkingCopy(std::string_view directory, std::string_view name) {
    return pathsIn(kWorkingCopyPlaces, directory, name);
}

}  // namespace lumo
