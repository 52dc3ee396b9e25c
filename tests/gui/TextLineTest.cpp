#include "controls/TextLine.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

namespace lumo {
namespace {

class Line : public testing::Test {
protected:
    TextLine line{theme::kRowStyle, theme::kText, nullptr};

    void TearDown() override { QToolTip::hideText(); }
    void showAt(int width) {
        line.resize(width, 16);
        line.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&line));
    }
    void askForHelp() {
        QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), line.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&line, &event);
    }
    QImage painted() { return line.grab().toImage(); }
};

TEST_F(Line, IsWholeWhereItFits) {
    line.setText("Ready");
    showAt(line.sizeHint().width());
    EXPECT_FALSE(line.isElided());
}

TEST_F(Line, IsElidedWhereItDoesNotAndWholeAgainWhereItDoes) {
    line.setText("Applied: Raindrops");
    showAt(60);
    EXPECT_TRUE(line.isElided());
    EXPECT_EQ(line.text(), "Applied: Raindrops");
    line.resize(400, 16);
    EXPECT_FALSE(line.isElided());
}

TEST_F(Line, TellsWhetherTheTextIsNew) {
    EXPECT_TRUE(line.setText("Ready"));
    EXPECT_FALSE(line.setText("Ready"));
    EXPECT_FALSE(line.setText("Rea\ndy"));
}

TEST_F(Line, WidthWithinALimitIsEnoughForWhatIsShownThere) {
    line.setText(std::string(100, 'W'));
    const int width = line.widthWithin(220);
    EXPECT_LE(width, 220);
    showAt(220);
    const QImage within = painted();
    line.resize(width, 16);
    EXPECT_EQ(painted(), within.copy(0, 0, width, 16));
}

TEST_F(Line, HelpShowsTheFullTextWhereItIsElided) {
    line.setText("Applied: Raindrops");
    showAt(60);
    askForHelp();
    EXPECT_TRUE(QToolTip::text().contains("Applied: Raindrops"));
}

TEST_F(Line, HelpShowsMarkUpAsItIs) {
    line.setText("<b>Applied</b>: Raindrops");
    showAt(60);
    askForHelp();
    EXPECT_TRUE(QToolTip::text().contains("&lt;b&gt;Applied&lt;/b&gt;: Raindrops"));
}

TEST_F(Line, ThereIsNoHelpForTextThatIsWhole) {
    line.setText("Ready");
    showAt(200);
    askForHelp();
    EXPECT_TRUE(QToolTip::text().isEmpty());
}

TEST_F(Line, PaintsItsTextInItsColor) {
    line.setText("IIII");
    line.resize(60, 16);
    QImage picture(60, 16, QImage::Format_RGB32);
    picture.fill(Qt::black);
    line.render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
    int brightest = 0;
    for (int x = 0; x < 60; ++x) brightest = std::max(brightest, picture.pixelColor(x, 8).green());
    EXPECT_GT(brightest, 0x60);
    EXPECT_LE(brightest, 0xF2);
}

}  // namespace
}  // namespace lumo
