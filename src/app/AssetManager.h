// Finds artwork by its file name: in the program's resources first, then in a working copy around the current
// directory, so that an installed program and one that was just built show the same pictures.
#pragma once

#include <QImage>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Bundle.h"

namespace lumo {

/// Main thread; the bundle outlives it. What was found once stays; what was not is looked for again at every call.
class AssetManager final {
public:
    /// True when there is a file at that path.
    using FileProbe = std::function<bool(const std::string& path)>;

    explicit AssetManager(Bundle& bundle, FileProbe isFile = isFileOnDisk);
    AssetManager(const AssetManager&) = delete;
    AssetManager& operator=(const AssetManager&) = delete;
    ~AssetManager() = default;

    /// The one instance of the running program.
    static AssetManager& shared();

    /// `name` with its ending, alone ("navi2_nr.png") or with folders; white space around it does not count. Null when
    /// no file of that name holds a picture, which is never an error. Valid as long as this object.
    /// To be drawn as it is: artwork has its own colours and is never tinted.
    [[nodiscard]] const QImage* image(std::string_view name);

private:
    static bool isFileOnDisk(const std::string& path);
    [[nodiscard]] QImage find(const std::string& name) const;
    [[nodiscard]] QImage firstOf(const std::vector<std::string>& paths) const;

    Bundle& m_bundle;
    FileProbe m_isFile;
    std::map<std::string, QImage, std::less<>> m_cache;  // by the name as it was asked for
};

}  // namespace lumo
