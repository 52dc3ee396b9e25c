#include "app/AssetManager.h"

#include <QString>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "app/AssetPaths.h"
#include "app/ImageFile.h"
#include "app/SharedObjects.h"

namespace lumo {
namespace {

/// White space and line breaks of every script count, not only those of ASCII.
std::string trimmed(std::string_view name) {
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())).trimmed().toStdString();
}

}  // namespace

AssetManager::AssetManager(Bundle& bundle, FileProbe isFile) : m_bundle(bundle), m_isFile(std::move(isFile)) {}

AssetManager& AssetManager::shared() {
    SharedObjects& objects = SharedObjects::current();
    std::shared_ptr<AssetManager>& place = objects.assetManager();
    if (!place) place = std::make_shared<AssetManager>(objects.bundle());
    return *place;
}

const QImage* AssetManager::image(std::string_view name) {
    if (const auto known = m_cache.find(name); known != m_cache.end()) return &known->second;
    QImage found = find(trimmed(name));
    if (found.isNull()) return nullptr;
    return &m_cache.emplace(name, std::move(found)).first->second;
}

QImage AssetManager::find(const std::string& name) const {
    if (const auto path = m_bundle.pathForResource(name)) {
        if (QImage image = loadImageFile(*path); !image.isNull()) return image;
    }
    if (const auto directory = m_bundle.resourceDirectory()) {
        if (QImage image = firstOf(assetPathsInResources(*directory, name)); !image.isNull()) return image;
    }
    std::error_code gone;  // somebody may have removed the folder we stand in
    const auto current = std::filesystem::current_path(gone);
    return gone ? QImage() : firstOf(assetPathsInWorkingCopy(current.string(), name));
}

QImage AssetManager::firstOf(const std::vector<std::string>& paths) const {
    for (const std::string& path : paths) {
        if (!m_isFile(path)) continue;
        if (QImage image = loadImageFile(path); !image.isNull()) return image;
    }
    return {};
}

bool AssetManager::isFileOnDisk(const std::string& path) {
    // Nothing else is opened: reading from a pipe of that name would hold the window up.
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

}  // namespace lumo
