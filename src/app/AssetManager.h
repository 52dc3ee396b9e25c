// Finds artwork by its file name: in the program's resources first, then in a working copy around the current
// directory, so that an installed program and one that was just built show the same pictures.
#pragma once

#include <QImage>
#include <functional>
#include <future>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/LoadedImage.h"
#include "platform/Bundle.h"

namespace lumo {

/// Main thread; the bundle outlives it. What was found once stays; what was not is looked for again at every call.
class AssetManager final {
public:
    /// True when there is a file at that path. Any thread.
    using FileProbe = std::function<bool(const std::string& path)>;

    explicit AssetManager(Bundle& bundle, FileProbe isFile = isFileOnDisk);
    AssetManager(const AssetManager&) = delete;
    AssetManager& operator=(const AssetManager&) = delete;
    ~AssetManager();

    /// The one instance of the running program.
    static AssetManager& shared();

    /// Has it read on another thread, for whoever will soon ask for it.
    void readAhead(std::string_view name);

    /// `name` with its ending, alone ("navi2_nr.png") or with folders; white space around it does not count. Null when
    /// no file of that name holds a picture, which is never an error.
    /// To be drawn as it is: artwork has its own colours and is never tinted.
    [[nodiscard]] QImage image(std::string_view name);

private:
    static bool isFileOnDisk(const std::string& path);
    [[nodiscard]] std::optional<LoadedImage> find(const std::string& name) const;
    [[nodiscard]] std::optional<LoadedImage> read(std::string_view name);
    [[nodiscard]] std::optional<LoadedImage> firstOf(const std::vector<std::string>& paths) const;

    Bundle& m_bundle;
    FileProbe m_isFile;
    std::map<std::string, LoadedImage, std::less<>> m_cache;  // by the name as it was asked for
    std::map<std::string, std::future<std::optional<LoadedImage>>, std::less<>> m_coming;
};

}  // namespace lumo
