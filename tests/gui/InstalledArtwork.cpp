// Copied to where the program is installed: says which shipped pictures it does not find from there.
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>

#include "Artwork.h"
#include "app/AssetManager.h"
#include "platform/NativeBundle.h"

namespace {

std::string_view lastComponent(std::string_view path) { return path.substr(path.rfind('/') + 1); }

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const auto bundle = lumo::makeNativeBundle();
    lumo::AssetManager assets(*bundle);
    int missing = 0;
    for (const auto& target : lumo::artwork::kExports) {
        const QImage image = assets.image(lastComponent(target.file));
        if (image.size() == QSize(target.width, target.height)) continue;
        std::printf("%.*s is not found.\n", static_cast<int>(target.file.size()), target.file.data());
        ++missing;
    }
    std::printf("%d of %zu pictures missing.\n", missing, lumo::artwork::kExports.size());
    return missing == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
