#include "macro/BytecodeCard.h"

#include "controls/PushButton.h"
#include "controls/Theme.h"
#include "macro/BytecodeView.h"

namespace lumo {
namespace {

constexpr int kSide = theme::kCardPadding;
constexpr int kButtonHeight = 24;
constexpr int kButtonPadding = 10;
constexpr int kHeadingHeight = theme::kSectionStyle.linePx;
constexpr int kHeadingGap = 8;

struct Measures {
    int padding;  // above and below
    int gap;      // between the heading's row and the box
    int lineHeight;
};
constexpr Measures kUsual{12, 10, theme::kHexStyle.linePx};
constexpr Measures kShort{10, 6, theme::kShortHexStyle.linePx};

}  // namespace

BytecodeCard::BytecodeCard(QWidget* parent)
    : HeadedCard(makeHeading("FIRMWARE BYTECODE (128B)"), parent),
      m_recompile(new PushButton("Recompile Bytecode", look::kSmall, this)),
      m_view(new BytecodeView(this)) {
    connect(m_recompile, &QAbstractButton::clicked, this, &BytecodeCard::recompiled);
}

void BytecodeCard::setBytecode(std::string_view text) {
    m_view->setBytecode(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void BytecodeCard::setShort(bool isShort) { m_isShort = isShort; }

void BytecodeCard::resizeEvent(QResizeEvent*) {
    const Measures& measures = m_isShort ? kShort : kUsual;
    const int buttonWidth = m_recompile->widthWith(kButtonPadding);
    const int buttonX = width() - kSide - buttonWidth;
    m_recompile->setGeometry(buttonX, measures.padding, buttonWidth, kButtonHeight);
    heading().setGeometry(kSide, measures.padding + (kButtonHeight - kHeadingHeight) / 2, buttonX - kHeadingGap - kSide,
                          kHeadingHeight);
    const int boxTop = measures.padding + kButtonHeight + measures.gap;
    m_view->setLineHeight(measures.lineHeight);
    m_view->setGeometry(kSide, boxTop, width() - 2 * kSide, height() - measures.padding - boxTop);
}

}  // namespace lumo
