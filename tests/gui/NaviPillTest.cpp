// What a navigation pill shows beside its title.
#include "app/NaviPillButton.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <algorithm>

#include "gui/CurrentFolder.h"
#include "support/LinkFixture.h"

namespace lumo {
namespace {

class NaviPill : public test::LinkFixture {
protected:
    QTemporaryDir folder;
    test::CurrentFolder here{folder.path()};
    NaviPillButton pill{NavTab::music, false, [] {}, nullptr};

    NaviPill() { pill.resize(183, 30); }

    /// Wider than high: what is shown square was stretched.
    void paintFile(const QString& name, const QColor& color) {
        QImage picture(50, 10, QImage::Format_RGB32);
        picture.fill(color);
        ASSERT_TRUE(QDir().mkpath(folder.filePath("assets")));
        ASSERT_TRUE(picture.save(folder.filePath("assets/" + name)));
    }
    /// Left of the title.
    QImage icon() { return pill.grab(QRect(0, 0, 48, pill.height())).toImage(); }
    /// What that colour fills; empty where it is not to be seen.
    QRect areaOf(const QColor& color) {
        const QImage image = icon();
        QRect area;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == color) area |= QRect(x, y, 1, 1);
            }
        }
        return area;
    }
    bool shows(const QColor& color) { return !areaOf(color).isEmpty(); }
    /// Neither the pill's ground nor its violet have much of it; thin lines hardly reach their own colour.
    int mostRed() {
        const QImage image = icon();
        int most = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) most = std::max(most, image.pixelColor(x, y).red());
        }
        return most;
    }
};

TEST_F(NaviPill, ShowsItsPictureStretchedToTheFrameInItsOwnColors) {
    paintFile("navi4_nr.png", Qt::red);
    paintFile("navi4_dn.png", Qt::green);
    EXPECT_NEAR(areaOf(Qt::red).width(), 20, 1);
    EXPECT_NEAR(areaOf(Qt::red).height(), 20, 1);
    EXPECT_FALSE(shows(Qt::green));
}

TEST_F(NaviPill, ShowsAnotherPictureWhileItIsSelected) {
    paintFile("navi4_nr.png", Qt::red);
    paintFile("navi4_dn.png", Qt::green);
    pill.setSelected(true);
    EXPECT_TRUE(shows(Qt::green));
    EXPECT_FALSE(shows(Qt::red));
}

TEST_F(NaviPill, ShowsAWhiteSymbolWhereThatPictureIsMissing) {
    paintFile("navi4_dn.png", Qt::green);
    EXPECT_GT(mostRed(), 0xC8);
    EXPECT_FALSE(shows(Qt::green));
    pill.setSelected(true);
    EXPECT_TRUE(shows(Qt::green));
}

TEST_F(NaviPill, ShowsAGreySymbolWhileItIsSelected) {
    paintFile("navi4_nr.png", Qt::red);
    pill.setSelected(true);
    EXPECT_GT(mostRed(), 0x90);
    EXPECT_LE(mostRed(), 0xB5);
}

}  // namespace
}  // namespace lumo
