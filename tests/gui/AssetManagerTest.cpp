#include "app/AssetManager.h"

#include "gui/AssetFixture.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

class Assets : public test::AssetFixture {
protected:
    /// Everywhere a picture "set/a.png" may lie, in the order of the search.
    const std::vector<QString> places{
        resources + "/set/a.png",
        resources + "/skins/set/a.png",
        resources + "/assets/set/a.png",
        resources + "/assets/skins/set/a.png",
        resources + "/skins/navi50x50/a.png",
        resources + "/skins/fun55x55/a.png",
        resources + "/skins/other/a.png",
        workingCopy + "/vexa_lumo_macos/assets/set/a.png",
        workingCopy + "/vexa_lumo_macos/assets/skins/set/a.png",
        workingCopy + "/vexa_lumo_macos/assets/skins/navi50x50/a.png",
        workingCopy + "/vexa_lumo_macos/assets/skins/fun55x55/a.png",
        workingCopy + "/vexa_lumo_macos/assets/skins/other/a.png",
        workingCopy + "/assets/set/a.png",
        workingCopy + "/assets/skins/set/a.png",
    };

    [[nodiscard]] static std::vector<std::string> utf8(const std::vector<QString>& paths) {
        std::vector<std::string> texts;
        for (const QString& path : paths) texts.push_back(path.toStdString());
        return texts;
    }
};

TEST_F(Assets, AnUnknownNameIsLookedForEverywhereInOrder) {
    EXPECT_TRUE(assets.image("set/a.png").isNull());
    EXPECT_EQ(bundle.timesAsked, 1);
    EXPECT_EQ(checks, utf8(places));
}

TEST_F(Assets, ANameFoundNowhereIsSearchedForAtEveryCall) {
    for (int call = 1; call <= 3; ++call) {
        EXPECT_TRUE(assets.image("set/a.png").isNull());
        EXPECT_EQ(bundle.timesAsked + static_cast<int>(checks.size()), 15 * call);
    }
    paint(places[13], Qt::red);
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
}

TEST_F(Assets, APictureThatIsReadAheadIsFoundAsOthersAre) {
    paint(places[13], Qt::red);
    assets.readAhead("set/a.png");
    assets.readAhead("set/b.png");
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
    EXPECT_TRUE(assets.image("set/b.png").isNull());
    paint(workingCopy + "/assets/set/b.png", Qt::blue);
    EXPECT_EQ(colorOf("set/b.png"), QColor(Qt::blue)) << "what was not there is looked for again";
}

TEST_F(Assets, ReadingAheadIsAnotherThreadsWork) {
    paint(places[13], Qt::red);
    assets.readAhead("set/a.png");
    const QImage picture = assets.image("set/a.png");
    ASSERT_FALSE(picture.isNull());
    ASSERT_FALSE(threads.empty());
    EXPECT_FALSE(threads.contains(std::this_thread::get_id()));
    EXPECT_EQ(assets.image("set/a.png").cacheKey(), picture.cacheKey());
}

TEST_F(Assets, NobodyWaitsForAPictureThatWasReadAheadForNothing) {
    paint(places[13], Qt::red);
    paint(workingCopy + "/assets/set/b.png", Qt::blue);
    assets.readAhead("set/a.png");
    EXPECT_EQ(colorOf("set/b.png"), QColor(Qt::blue));
}

TEST_F(Assets, APictureOnceFoundCostsNoLookAtTheDisk) {
    paint(places[13], Qt::red);
    const QImage first = assets.image("set/a.png");
    ASSERT_FALSE(first.isNull());
    bundle.timesAsked = 0;
    checks.clear();
    EXPECT_EQ(assets.image("set/a.png").cacheKey(), first.cacheKey());
    EXPECT_EQ(bundle.timesAsked, 0);
    EXPECT_TRUE(checks.empty());
}

TEST_F(Assets, APictureOnceFoundOutlivesItsFile) {
    paint(places[0], Qt::red);
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
    ASSERT_TRUE(QFile::remove(places[0]));
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
}

TEST_F(Assets, APictureKeepsItsAddressWhileOthersCome) {
    paint(places[0], Qt::red);
    const QImage first = assets.image("set/a.png");
    for (std::size_t count = 1; count <= 200; ++count) (void)assets.image("set/a.png" + std::string(count, ' '));
    EXPECT_EQ(assets.image("set/a.png").cacheKey(), first.cacheKey());
}

TEST_F(Assets, ALargePicturesPixelsAreTheirsWhoAsked) {
    paint(places[0], Qt::red, {512, 512});
    for (int call = 1; call <= 3; ++call) EXPECT_TRUE(assets.image("set/a.png").isDetached()) << call;
}

TEST_F(Assets, ALargePictureOutlivesItsFile) {
    paint(places[0], Qt::red, {512, 512});
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
    paint(places[0], Qt::blue, {512, 512});
    checks.clear();
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
    EXPECT_TRUE(checks.empty());
}

TEST_F(Assets, ASmallPicturesPixelsStay) {
    paint(places[0], Qt::red, {110, 110});
    for (int call = 1; call <= 3; ++call) EXPECT_FALSE(assets.image("set/a.png").isDetached()) << call;
}

class AssetsAt : public Assets, public testing::WithParamInterface<std::size_t> {};

TEST_P(AssetsAt, APlaceComesBeforeAllBelowIt) {
    for (std::size_t place = GetParam() + 1; place < places.size(); ++place) paint(places[place], Qt::green);
    paint(places[GetParam()], Qt::red);
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
}

INSTANTIATE_TEST_SUITE_P(Place, AssetsAt, testing::Range(std::size_t{0}, std::size_t{14}));

TEST_F(Assets, TheBundlesOwnAnswerComesFirst) {
    for (const QString& place : places) paint(place, Qt::green);
    const QString own = resources + "/elsewhere.png";
    paint(own, Qt::red);
    bundle.paths["set/a.png"] = own.toStdString();
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
    EXPECT_TRUE(checks.empty());
}

TEST_F(Assets, ABundlesAnswerThatIsNoPictureEndsNothing) {
    write(resources + "/broken.png", "not a picture");
    bundle.paths["set/a.png"] = (resources + "/broken.png").toStdString();
    paint(places[0], Qt::green);
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::green));
}

TEST_F(Assets, SpacesAroundANameFindTheSameFileUnderAKeyOfTheirOwn) {
    paint(resources + "/skins/navi50x50/navi2_nr.png", Qt::red);
    EXPECT_EQ(colorOf("navi2_nr.png"), QColor(Qt::red));
    checks.clear();
    EXPECT_EQ(colorOf(" navi2_nr.png "), QColor(Qt::red));
    EXPECT_EQ(checks.size(), 5U);  // found anew: the fifth place of the resources
    EXPECT_NE(assets.image("navi2_nr.png").cacheKey(), assets.image(" navi2_nr.png ").cacheKey());
    EXPECT_EQ(checks.size(), 5U);
}

TEST_F(Assets, LineBreaksAndWhiteSpaceOfAnyScriptDoNotCount) {
    paint(places[0], Qt::red);
    EXPECT_EQ(colorOf("\r\n\t\u00A0\u2028set/a.png\u3000\n"), QColor(Qt::red));
}

TEST_F(Assets, WhiteSpaceInsideANameCounts) {
    paint(resources + "/a  b.png", Qt::red);
    EXPECT_EQ(colorOf("a  b.png"), QColor(Qt::red));
    EXPECT_TRUE(assets.image("a b.png").isNull());
}

TEST_F(Assets, APathIsFoundThroughItsLastComponent) {
    paint(resources + "/skins/navi50x50/navi2_nr.png", Qt::red);
    EXPECT_EQ(colorOf("skins/navi50x50/navi2_nr.png"), QColor(Qt::red));
    EXPECT_EQ(colorOf("some/other/folder/navi2_nr.png"), QColor(Qt::red));
}

TEST_F(Assets, WithoutResourcesOnlyTheWorkingCopyIsSearched) {
    bundle.directory.reset();
    paint(places[0], Qt::green);
    EXPECT_TRUE(assets.image("set/a.png").isNull());
    EXPECT_EQ(checks, utf8({places.begin() + 7, places.end()}));
    paint(places[7], Qt::red);
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
}

TEST_F(Assets, TheWorkingCopyIsWhereTheProcessStandsAtThatMoment) {
    EXPECT_TRUE(assets.image("set/a.png").isNull());
    paint(workingCopy + "/deeper/assets/set/a.png", Qt::red);
    const test::CurrentFolder deeper(workingCopy + "/deeper");
    EXPECT_EQ(colorOf("set/a.png"), QColor(Qt::red));
}

TEST_F(Assets, AFolderThatIsGoneIsNoWorkingCopy) {
    ASSERT_TRUE(QDir().mkpath(workingCopy + "/gone"));
    const test::CurrentFolder gone(workingCopy + "/gone");
    ASSERT_TRUE(QDir().rmdir(workingCopy + "/gone"));
    EXPECT_TRUE(assets.image("set/a.png").isNull());
    EXPECT_EQ(checks.size(), 7U);
}

TEST_F(Assets, AnEmptyNameIsNoPicture) {
    paint(places[0], Qt::green);
    for (const char* const name : {"", " ", "\n\t", "/", "set/"}) EXPECT_TRUE(assets.image(name).isNull()) << name;
}

TEST_F(Assets, ArtworkIsReadyToBePaintedAndKeepsItsColors) {
    paint(places[0], QColor(0xB9, 0xA3, 0xFF));
    const QImage image = assets.image("set/a.png");
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(0xB9, 0xA3, 0xFF));
}

TEST_F(Assets, TranslucentArtworkIsMadeReadyAsQtWould) {
    QImage drawn(256, 4, QImage::Format_ARGB32);
    for (int x = 0; x < drawn.width(); ++x) {
        for (int y = 0; y < drawn.height(); ++y) drawn.setPixel(x, y, qRgba(x, 255 - x, (x * 7) % 256, y * 85));
    }
    ASSERT_TRUE(drawn.save(resources + "/a.png"));
    EXPECT_EQ(assets.image("a.png"), drawn.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

class SharedAssets : public test::AssetFixture {
protected:
    test::TestPlatform platform;
};

TEST_F(SharedAssets, AlwaysAreTheSameObjectOverThePlatformsBundle) {
    const SharedObjects objects(platform);
    platform.resources.paths["a.png"] = (resources + "/a.png").toStdString();
    paint(resources + "/a.png", Qt::red);
    EXPECT_EQ(&AssetManager::shared(), &AssetManager::shared());
    EXPECT_FALSE(AssetManager::shared().image("a.png").isNull());
}

TEST_F(SharedAssets, GoWithTheObjectsTheyWereMadeBeside) {
    paint(workingCopy + "/assets/a.png", Qt::red);
    {
        const SharedObjects objects(platform);
        EXPECT_FALSE(AssetManager::shared().image("a.png").isNull());
    }
    ASSERT_TRUE(QFile::remove(workingCopy + "/assets/a.png"));
    const SharedObjects objects(platform);
    EXPECT_TRUE(AssetManager::shared().image("a.png").isNull());
}

}  // namespace
}  // namespace lumo
