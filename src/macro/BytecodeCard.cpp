#include "macro/BytecodeCard.h"

#include "controls/PushButton.h"
#include "controls/Theme.h"
#include "macro/BytecodeView.h"

namespace lumo {
namespace {

constexpr int kSide = theme::kCardPadding;
constexpr int kButtonPadding = 10;
constexpr int kHeadingGap = 8;

struct Measures {
    int padding;  // above and below
    int gap;      // between the heading's row and the box
    const theme::TextStyle& style;
};
constexpr int kLines = 8;
constexpr int kLeastBoxPadding = 7;
constexpr Measures kUsual{12, 10, theme::kHexStyle};
constexpr Measures kShort{10, 6, theme::kShortHexStyle};

int buttonHeight() { return theme::grown(24); }

}  // namespace

int BytecodeCard::leastHeight() {
    const int box = kLines * kShort.style.linePx() + 2 * kLeastBoxPadding;
    return kShort.padding + buttonHeight() + kShort.gap + box + kShort.padding;
}

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
    const int headingHeight = theme::kSectionStyle.linePx();
    const int buttonWidth = m_recompile->widthWith(kButtonPadding);
    const int buttonX = width() - kSide - buttonWidth;
    m_recompile->setGeometry(buttonX, measures.padding, buttonWidth, buttonHeight());
    heading().setGeometry(kSide, measures.padding + (buttonHeight() - headingHeight) / 2, buttonX - kHeadingGap - kSide,
                          headingHeight);
    const int boxTop = measures.padding + buttonHeight() + measures.gap;
    m_view->setLineHeight(measures.style.linePx());
    m_view->setGeometry(kSide, boxTop, width() - 2 * kSide, height() - measures.padding - boxTop);
}

}  // namespace lumo
