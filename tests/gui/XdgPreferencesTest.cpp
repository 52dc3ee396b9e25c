#include "platform/qt/XdgPreferences.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/NativePreferences.h"

namespace lumo {
namespace {

constexpr auto kFlag = "VexaLumoHasLaunchedBefore";

class XdgPreferencesTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath("vexa-lumo-65/preferences.ini");

    void writeFile(const QByteArray& bytes) const {
        ASSERT_TRUE(QDir().mkpath(folder.filePath("vexa-lumo-65")));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] QByteArray fileBytes() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] bool readsTrue() const { return XdgPreferences(path).boolForKey(kFlag); }
    void setTrue() const { XdgPreferences(path).setBool(true, kFlag); }
};

TEST_F(XdgPreferencesTest, WithoutAFileEveryValueIsFalseAndNoFileIsMade) {
    EXPECT_FALSE(readsTrue());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(XdgPreferencesTest, AValueIsInTheFileAsSoonAsItIsSet) {
    XdgPreferences preferences(path);
    preferences.setBool(true, kFlag);
    EXPECT_EQ(fileBytes(), "[General]\nVexaLumoHasLaunchedBefore=true\n");
    EXPECT_TRUE(readsTrue());
}

TEST_F(XdgPreferencesTest, NothingButTheFileIsLeftInTheFolder) {
    setTrue();
    EXPECT_EQ(QDir(folder.filePath("vexa-lumo-65")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"preferences.ini"});
}

TEST_F(XdgPreferencesTest, AnythingButTrueIsFalse) {
    for (const char* const value : {"false", "0", "1", "yes", "", "TRUE!"}) {
        writeFile(QByteArray("[General]\nVexaLumoHasLaunchedBefore=") + value + "\n");
        EXPECT_FALSE(readsTrue()) << value;
    }
}

TEST_F(XdgPreferencesTest, ADamagedFileCountsAsAnEmptyOneAndIsMadeAnewByTheNextWrite) {
    QByteArray noise;
    for (int i = 0; i < 4096; ++i) noise.append(static_cast<char>(i * 7919 >> 3));
    for (const QByteArray& damaged :
         {QByteArray("\0\0\0\0", 4), noise, QByteArray("[General\nVexaLumo"), QByteArray("=true\n=\n[[]]")}) {
        writeFile(damaged);
        EXPECT_FALSE(readsTrue());
        setTrue();
        EXPECT_TRUE(readsTrue());
    }
}

TEST_F(XdgPreferencesTest, AFileTooLargeToBeOursIsNeitherReadNorTouched) {
    writeFile(QByteArray("[General]\nVexaLumoHasLaunchedBefore=true\n;") + QByteArray(65 * 1024, 'x'));
    const QByteArray before = fileBytes();
    XdgPreferences preferences(path);
    EXPECT_FALSE(preferences.boolForKey(kFlag));
    preferences.setBool(true, kFlag);
    EXPECT_TRUE(preferences.boolForKey(kFlag));  // for this run
    EXPECT_EQ(fileBytes(), before);
}

TEST_F(XdgPreferencesTest, APipeInTheFilesPlaceIsNotWaitedFor) {
    ASSERT_TRUE(QDir().mkpath(folder.filePath("vexa-lumo-65")));
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    XdgPreferences preferences(path);
    EXPECT_FALSE(preferences.boolForKey(kFlag));
    preferences.setBool(true, kFlag);
    EXPECT_TRUE(preferences.boolForKey(kFlag));
}

TEST_F(XdgPreferencesTest, ALinkToTheFileIsFollowedAndStays) {
    ASSERT_TRUE(QDir().mkpath(folder.filePath("vexa-lumo-65")));
    const QString target = folder.filePath("elsewhere.ini");
    ASSERT_TRUE(QFile::link(target, path));  // which is not there yet
    setTrue();
    EXPECT_TRUE(readsTrue());
    EXPECT_EQ(QFileInfo(path).symLinkTarget(), target);
    EXPECT_TRUE(QFileInfo(target).isFile());
}

TEST_F(XdgPreferencesTest, ALinkToWhatIsNoFileStaysAndKeepsTheValueForThisRun) {
    ASSERT_TRUE(QDir().mkpath(folder.filePath("vexa-lumo-65")));
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& target : {pipe, folder.path(), QString("/dev/zero")}) {
        QFile::remove(path);
        ASSERT_TRUE(QFile::link(target, path));
        XdgPreferences preferences(path);
        EXPECT_FALSE(preferences.boolForKey(kFlag)) << target.toStdString();
        preferences.setBool(true, kFlag);
        EXPECT_TRUE(preferences.boolForKey(kFlag)) << target.toStdString();
        EXPECT_TRUE(QFileInfo(path).isSymLink()) << target.toStdString();
    }
}

TEST_F(XdgPreferencesTest, WhereNothingCanBeWrittenTheValueStaysForThisRun) {
    writeFile("");
    const QString below = path + "/preferences.ini";  // a file where a folder would have to be
    {
        XdgPreferences preferences(below);
        preferences.setBool(true, kFlag);
        EXPECT_TRUE(preferences.boolForKey(kFlag));
    }
    EXPECT_FALSE(XdgPreferences(below).boolForKey(kFlag));  // in the next
}

TEST_F(XdgPreferencesTest, LieInTheConfigurationFolderOfTheUser) {
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    makeNativePreferences()->setBool(true, kFlag);
    if (before.isNull()) {
        qunsetenv("XDG_CONFIG_HOME");
    } else {
        qputenv("XDG_CONFIG_HOME", before);
    }
    EXPECT_TRUE(readsTrue());
}

}  // namespace
}  // namespace lumo
