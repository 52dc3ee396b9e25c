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
constexpr int kWidth = 448;
constexpr int kButtonGap = 10;
constexpr int kLineWidth = 1;
constexpr int kMostLines = 4;

/// What the texts and buttons stand on, with the symbol.
class CardGround final : public QWidget {
public:
    CardGround(PromptCard::Symbol symbol, QWidget* card) : QWidget(card), m_symbol(std::move(symbol)) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), theme::kPopup);
        const double x = (width() - m_symbol.height) / 2.0;
        m_symbol.paint(painter, QRectF(x, kPadding - y(), m_symbol.height, m_symbol.height));
    }

private:
    PromptCard::Symbol m_symbol;
};

}  // namespace

int PromptCard::contentWidth() { return theme::widened(kWidth) - 2 * kPadding; }

PromptCard::PromptCard(const Symbol& symbol, const Texts& texts, QWidget* box)
    : m_ground(new CardGround(symbol, this)),
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
    resize(contentWidth() + 2 * kPadding, layOut(symbol.height));
    constexpr int kEnd = static_cast<int>(theme::kPopupRadius);
    m_ground->setGeometry(rect().adjusted(kLineWidth, kEnd, -kLineWidth, -kEnd));
}

int PromptCard::layOut(int symbolHeight) {
    int top = kPadding + symbolHeight + kSymbolToHeading;
    const auto place = [&top](QWidget& widget, int height, int gapBelow) {
        widget.setGeometry(kPadding, top, contentWidth(), height);
        top += height + gapBelow;
    };
    place(*m_heading, m_heading->heightWithin(contentWidth()), kHeadingToText);
    place(*m_text, m_text->heightWithin(contentWidth()), kTextToBox);
    place(*m_box, m_box->height(), kBoxToButtons);
    const int buttonHeight = theme::grown(36);
    const int buttonWidth = (contentWidth() - kButtonGap) / 2;
    m_first->setGeometry(kPadding, top, buttonWidth, buttonHeight);
    m_second->setGeometry(kPadding + buttonWidth + kButtonGap, top, buttonWidth, buttonHeight);
    return top + buttonHeight + kFootPadding;
}

void PromptCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kPopupRadius, theme::kPopup, theme::kPopupLine);
}

}  // namespace lumo
