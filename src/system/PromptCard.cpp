#include "system/PromptCard.h"

#include <QPainter>
#include <utility>

#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/TextBlock.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kPadding = 28;
constexpr int kFootPadding = 24;
constexpr int kSymbolToHeading = 14;
constexpr int kHeadingToText = 6;
constexpr int kTextToBox = 18;
constexpr int kBoxToButtons = 20;
constexpr int kButtonHeight = 36;
constexpr int kButtonGap = 10;
constexpr int kMostLines = 4;

}  // namespace

PromptCard::PromptCard(Symbol symbol, const Texts& texts, QWidget* box)
    : m_symbol(std::move(symbol)),
      m_heading(new TextBlock(theme::kPopupTitleStyle, theme::kText, kMostLines, this)),
      m_text(new TextBlock(theme::kPopupTextStyle, theme::kTextPopup, kMostLines, this)),
      m_box(box),
      m_first(new PushButton(texts.firstButton, look::kPopupPrimary, this)),
      m_second(new PushButton(texts.secondButton, look::kPopupSecondary, this)) {
    m_box->setParent(this);
    m_heading->setText(texts.heading);
    m_heading->centreLines();
    m_text->setText(texts.text);
    m_text->centreLines();
    resize(kWidth, layOut());
}

int PromptCard::layOut() {
    int top = kPadding + m_symbol.height + kSymbolToHeading;
    const auto place = [&top](QWidget& widget, int height, int gapBelow) {
        widget.setGeometry(kPadding, top, kContentWidth, height);
        top += height + gapBelow;
    };
    place(*m_heading, m_heading->heightWithin(kContentWidth), kHeadingToText);
    place(*m_text, m_text->heightWithin(kContentWidth), kTextToBox);
    place(*m_box, m_box->height(), kBoxToButtons);
    constexpr int kButtonWidth = (kContentWidth - kButtonGap) / 2;
    m_first->setGeometry(kPadding, top, kButtonWidth, kButtonHeight);
    m_second->setGeometry(kPadding + kButtonWidth + kButtonGap, top, kButtonWidth, kButtonHeight);
    return top + kButtonHeight + kFootPadding;
}

void PromptCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kPopupRadius, theme::kPopup, theme::kPopupLine);
    m_symbol.paint(painter, QRectF((width() - m_symbol.height) / 2.0, kPadding, m_symbol.height, m_symbol.height));
}

}  // namespace lumo
