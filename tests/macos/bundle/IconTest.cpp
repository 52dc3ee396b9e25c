// The icon of the bundle. After a change to the program's picture run scripts/icon.sh.
#include <gmock/gmock.h>

#include "IconFile.h"

using testing::ElementsAre;
using testing::Pair;

namespace lumo::test {
namespace {

class Icon : public testing::Test {
protected:
    const std::map<std::string, QImage> pictures = picturesOf(LUMO_BUNDLE "/Contents/Resources/vexa-lumo-65.icns");
    const QImage program{LUMO_ASSETS "/appicon.png"};
};

TEST_F(Icon, HasAPictureForEverySizeThatIsShown) {
    std::map<std::string, QSize> sizes;
    for (const auto& [kind, picture] : pictures) sizes[kind] = picture.size();
    EXPECT_THAT(sizes,
                ElementsAre(Pair("ic07", QSize(128, 128)), Pair("ic08", QSize(256, 256)), Pair("ic09", QSize(512, 512)),
                            Pair("ic10", QSize(1024, 1024)), Pair("ic11", QSize(32, 32)), Pair("ic12", QSize(64, 64)),
                            Pair("ic13", QSize(256, 256)), Pair("ic14", QSize(512, 512))));
}

TEST_F(Icon, ShowsThePictureOfTheProgram) {
    ASSERT_TRUE(pictures.contains("ic10"));
    EXPECT_EQ(pictures.at("ic10").convertToFormat(QImage::Format_ARGB32_Premultiplied),
              program.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

TEST_F(Icon, IsClearAroundTheProgramsPicture) {
    for (const auto& [kind, picture] : pictures) EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0) << kind;
}

}  // namespace
}  // namespace lumo::test
