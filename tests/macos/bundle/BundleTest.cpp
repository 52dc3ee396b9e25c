// What lies in the bundle, and what is made of it for users.
#include <gmock/gmock.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <set>
#include <string>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

namespace lumo::test {
namespace {

std::set<std::string> filesBelow(const QString& folder, const QStringList& names = {}) {
    std::set<std::string> files;
    QDirIterator iterator(folder, names, QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext()) files.insert(QDir(folder).relativeFilePath(iterator.next()).toStdString());
    return files;
}

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(Bundle, HasTheArtworkWhereTheProgramLooksForItAndTheIcon) {
    std::set<std::string> expected = filesBelow(LUMO_ASSETS, {"*.png"});
    EXPECT_THAT(expected, Contains("skins/navi50x50/navi2_nr.png"));
    expected.insert("vexa-lumo-65.icns");
    EXPECT_EQ(filesBelow(LUMO_BUNDLE "/Contents/Resources"), expected);
}

TEST(Bundle, HasTheArtworkAsItIs) {
    const QByteArray picture = contentsOf(LUMO_BUNDLE "/Contents/Resources/skins/other/time.png");
    EXPECT_FALSE(picture.isEmpty());
    EXPECT_EQ(picture, contentsOf(LUMO_ASSETS "/skins/other/time.png"));
}

TEST(Bundle, IsInstalledUnderTheNameThatUsersRead) {
    EXPECT_THAT(QDir(LUMO_INSTALLED).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                ElementsAre(QString("Vexa Lumo 65.app")));
    EXPECT_TRUE(QFile::exists(LUMO_INSTALLED "/Vexa Lumo 65.app/Contents/MacOS/vexa-lumo-65"));
}

TEST(Bundle, ComesAsADiskImage) {
    const std::string package = contentsOf(LUMO_PACKAGE).toStdString();
    EXPECT_THAT(package, HasSubstr("set(CPACK_GENERATOR \"DragNDrop\")"));
    EXPECT_THAT(package, HasSubstr("set(CPACK_DMG_VOLUME_NAME \"Vexa Lumo 65\")"));
    EXPECT_THAT(package, HasSubstr("set(CPACK_PACKAGE_FILE_NAME \"vexa-lumo-65-" LUMO_VERSION "\")"));
}

}  // namespace
}  // namespace lumo::test
