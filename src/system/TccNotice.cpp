#include "system/TccNotice.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/Symbol.h"
#include "controls/TextBlock.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kPadding = 8;
constexpr int kSidePadding = 10;
constexpr QRect kSymbolFrame{kSidePadding, kPadding, 16, 16};
constexpr int kTextX = 35;
constexpr int kMostLines = 6;
constexpr double kRadius = 8.0;
constexpr QColor kTextColor{0xBC, 0xBC, 0xC1};

int headingHeight() { return theme::kNoticeHeadingStyle.linePx(); }

int textWidthWithin(int width) { return width - kTextX - kSidePadding; }

}  // namespace

TccNotice::TccNotice(QWidget* parent)
    : QWidget(parent),
      m_heading(new TextLine(theme::kNoticeHeadingStyle, theme::kText, this)),
      m_text(new TextBlock(theme::kFineStyle, kTextColor, kMostLines, this)) {
    m_heading->setText("macOS Permissions TCC Notice");
    m_text->setText(
        "If permissions show ON in System Settings but features are not working, select Vexa Lumo 65 in System "
        "Settings, click the minus (-) button to remove it, then toggle or add (+) it again. Afterward, click "
        "'Relaunch App' below.");
}

int TccNotice::heightWithin(int width) const {
    return 2 * kPadding + headingHeight() + m_text->heightWithin(textWidthWithin(width));
}

void TccNotice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), kRadius, theme::kNoticeFill, theme::kNoticeLine);
    paintSymbol(painter, kSymbolFrame, "exclamationmark.triangle.fill", theme::kTextWarn);
}

void TccNotice::resizeEvent(QResizeEvent*) {
    const int textWidth = textWidthWithin(width());
    m_heading->setGeometry(kTextX, kPadding, textWidth, headingHeight());
    m_text->setGeometry(kTextX, kPadding + headingHeight(), textWidth, height() - 2 * kPadding - headingHeight());
}

}  // namespace lumo
