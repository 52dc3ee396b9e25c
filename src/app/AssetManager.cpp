#include "app/AssetManager.h"

#include <QString>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "app/AssetPaths.h"
#include "app/SharedObjects.h"
#include "foundation/MakeAhead.h"

namespace lumo {
namespace {

/// White space and line breaks of every script count, not only those of ASCII.
std::string trimmed(std::string_view name) {
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())).trimmed().toStdString();
}

}  // namespace

AssetManager::AssetManager(Bundle& bundle, FileProbe isFile) : m_bundle(bundle), m_isFile(std::move(isFile)) {}

AssetManager::~AssetManager() { finishMakingAhead(); }

AssetManager& AssetManager::shared() {
    SharedObjects& objects = SharedObjects::current();
    std::shared_ptr<AssetManager>& place = objects.assetManager();
    if (!place) place = std::make_shared<AssetManager>(objects.bundle());
    return *place;
}

QImage AssetManager::image(std::string_view name) {
    if (const auto known = m_cache.find(name); known != m_cache.end()) return known->second.pixels();
    std::optional<LoadedImage> found = read(name);
    if (!found) return {};
    return m_cache.emplace(name, *std::move(found)).first->second.pixels();
}

void AssetManager::readAhead(std::string_view name) {
    m_coming.emplace(name, makeAhead([this, file = trimmed(name)] { return find(file); }));
}

std::optional<LoadedImage> AssetManager::read(std::string_view name) {
    const auto coming = m_coming.find(name);
    if (coming == m_coming.end()) return find(trimmed(name));
    return m_coming.extract(coming).mapped().get();
}

std::optional<LoadedImage> AssetManager::find(const std::string& name) const {
    if (const auto path = m_bundle.pathForResource(name)) {
        if (auto image = LoadedImage::fromFile(*path)) return image;
    }
    if (const auto directory = m_bundle.resourceDirectory()) {
        if (auto image = firstOf(assetPathsInResources(*directory, name))) return image;
    }
    std::error_code gone;  // somebody may have removed the folder we stand in
    const auto current = std::filesystem::current_path(gone);
    return gone ? std::nullopt : firstOf(assetPathsInWorkingCopy(current.string(), name));
}

std::optional<LoadedImage> AssetManager::firstOf(const std::vector<std::string>& paths) const {
    for (const std::string& path : paths) {
        if (!m_isFile(path)) continue;
        if (auto image = LoadedImage::fromFile(path)) return image;
    }
    return std::nullopt;
}

bool AssetManager::isFileOnDisk(const std::string& path) {
    // Nothing else is opened: reading from a pipe of that name would hold the window up.
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

}  // namespace lumo
