#include "controls/InfoBox.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/TextBlock.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kMostLines = 3;
constexpr int kPadding = 12;

}  // namespace

InfoBox::InfoBox(QWidget* parent)
    : QWidget(parent), m_text(new TextBlock(theme::kRowStyle, theme::kTextInfo, kMostLines, this)) {}

void InfoBox::setText(std::string_view text) { m_text->setText(text); }

void InfoBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kBoxRadius, theme::kInset, theme::kCardLine);
}

void InfoBox::resizeEvent(QResizeEvent*) { m_text->setGeometry(rect().adjusted(kPadding, 0, -kPadding, 0)); }

}  // namespace lumo
