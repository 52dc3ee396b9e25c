#include "controls/InfoBox.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/TextBlock.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kDesignedLines = 3;
constexpr int kLowLines = 2;
constexpr int kPadding = 12;
constexpr int kAboveAndBelow = 17;

/// Larger letters break the same text into one line more.
int mostLines() { return theme::textScale() > 1.0 ? kDesignedLines + 1 : kDesignedLines; }

}  // namespace

int InfoBox::lowBoxHeight() { return kLowLines * theme::kRowStyle.linePx() + kAboveAndBelow; }

int InfoBox::boxHeight() { return mostLines() * theme::kRowStyle.linePx() + kAboveAndBelow; }

InfoBox::InfoBox(QWidget* parent)
    : QWidget(parent), m_text(new TextBlock(theme::kRowStyle, theme::kTextInfo, mostLines(), this)) {}

void InfoBox::setText(std::string_view text) { m_text->setText(text); }

void InfoBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kBoxRadius, theme::kInset, theme::kCardLine);
}

void InfoBox::resizeEvent(QResizeEvent*) { m_text->setGeometry(rect().adjusted(kPadding, 0, -kPadding, 0)); }

}  // namespace lumo
