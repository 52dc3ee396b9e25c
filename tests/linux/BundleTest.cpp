#include <gtest/gtest.h>
#include <stdlib.h>

#include <fstream>

#include "platform/NativeBundle.h"
#include "platform/linux/PrefixBundle.h"

namespace lumo {
namespace {

namespace fs = std::filesystem;

class InstalledBundle : public testing::Test {
protected:
    fs::path prefix;

    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "lumo-prefix-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        prefix = pattern;
    }
    void TearDown() override { fs::remove_all(prefix); }

    [[nodiscard]] fs::path makeResources() const {
        const fs::path folder = prefix / "share/vexa-lumo-65";
        fs::create_directories(folder);
        return folder;
    }
    static void write(const fs::path& path) {
        fs::create_directories(path.parent_path());
        std::ofstream(path) << "anything";
    }
};

TEST_F(InstalledBundle, HasItsResourcesBesideTheFolderOfPrograms) {
    const fs::path resources = makeResources();
    EXPECT_EQ(PrefixBundle(prefix / "bin/vexa-lumo-65").resourceDirectory(), resources.string());
}

TEST_F(InstalledBundle, HasNoneWhereNoneAreInstalled) {
    EXPECT_EQ(PrefixBundle(prefix / "bin/vexa-lumo-65").resourceDirectory(), std::nullopt);
    EXPECT_EQ(PrefixBundle(prefix / "bin/vexa-lumo-65").pathForResource("keyimg.png"), std::nullopt);
}

TEST_F(InstalledBundle, HasNoneWhenAFileHasTheirName) {
    write(prefix / "share/vexa-lumo-65");
    EXPECT_EQ(PrefixBundle(prefix / "bin/vexa-lumo-65").resourceDirectory(), std::nullopt);
}

TEST_F(InstalledBundle, HasNoneForAProgramOutsideAFolderOfPrograms) {
    (void)makeResources();
    EXPECT_EQ(PrefixBundle(prefix / "sbin/vexa-lumo-65").resourceDirectory(), std::nullopt);
    EXPECT_EQ(PrefixBundle(prefix / "vexa-lumo-65").resourceDirectory(), std::nullopt);
    EXPECT_EQ(PrefixBundle("").resourceDirectory(), std::nullopt);
}

TEST_F(InstalledBundle, FindsAResourceByItsNameAndByItsPath) {
    const fs::path resources = makeResources();
    write(resources / "keyimg.png");
    write(resources / "skins/other/time.png");
    const PrefixBundle bundle(prefix / "bin/vexa-lumo-65");
    EXPECT_EQ(bundle.pathForResource("keyimg.png"), (resources / "keyimg.png").string());
    EXPECT_EQ(bundle.pathForResource("skins/other/time.png"), (resources / "skins/other/time.png").string());
    EXPECT_EQ(bundle.pathForResource("time.png"), std::nullopt);
}

TEST_F(InstalledBundle, TakesNoFolderForAResource) {
    write(makeResources() / "skins/other/time.png");
    const PrefixBundle bundle(prefix / "bin/vexa-lumo-65");
    EXPECT_EQ(bundle.pathForResource("skins"), std::nullopt);
    EXPECT_EQ(bundle.pathForResource(""), std::nullopt);
}

TEST(NativeBundle, HasNoResourcesInABuildTree) {
    EXPECT_EQ(makeNativeBundle()->resourceDirectory(), std::nullopt);
    EXPECT_EQ(makeNativeBundle()->pathForResource("keyimg.png"), std::nullopt);
}

}  // namespace
}  // namespace lumo
