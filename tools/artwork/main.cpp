// Makes every shipped picture anew from its drawing.
#include <QImageWriter>
#include <cstdio>
#include <cstdlib>

#include "Artwork.h"

namespace {

constexpr int kSmallestFile = 0;  // PNG has no quality; Qt takes the number as how little to compress

bool write(const QImage& picture, const QString& path) {
    QImageWriter writer(path, "png");
    writer.setQuality(kSmallestFile);
    return writer.write(picture);
}

bool make(const QString& folder, const lumo::artwork::Export& target) {
    const QString name = QString::fromUtf8(target.file.data(), static_cast<qsizetype>(target.file.size()));
    const QImage picture = lumo::artwork::render(folder + '/' + drawingOf(target), target);
    if (!picture.isNull() && write(picture, folder + '/' + name)) return true;
    std::fprintf(stderr, "lumo-artwork: %s could not be made.\n", qPrintable(name));
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("Usage: lumo-artwork FOLDER   draws every picture of the asset folder anew\n", stderr);
        return 2;
    }
    bool isComplete = true;
    for (const auto& target : lumo::artwork::kExports) isComplete = make(argv[1], target) && isComplete;
    return isComplete ? EXIT_SUCCESS : EXIT_FAILURE;
}
