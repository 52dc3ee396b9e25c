// Whatever lies where the preferences are kept, it is read without harm, and a value written over it is read again.
#include <QFile>

#include "TemporaryFolder.h"
#include "platform/qt/XdgPreferences.h"

namespace {

using lumo::fuzz::expect;

constexpr std::string_view kKey = "VexaLumoHasLaunchedBefore";

/// Of an object of its own, as a later launch would make it.
bool readAgain(const QString& path) { return lumo::XdgPreferences(path).boolForKey(kKey); }

void checkWriting(const QString& path, bool value) {
    lumo::XdgPreferences(path).setBool(value, kKey);
    expect(readAgain(path) == value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const lumo::fuzz::TemporaryFolder folder;
    static unsigned files = 0;  // Qt remembers a file by its name
    const std::string name = folder.write(std::to_string(++files) + ".ini", lumo::fuzz::textOf(data, size));
    const QString path = QFile::decodeName(name.c_str());
    expect(readAgain(path) == readAgain(path));
    checkWriting(path, true);
    checkWriting(path, false);
    expect(QFile::remove(path));
    return 0;
}
