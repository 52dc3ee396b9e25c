#include "audio/MicrophoneNotice.h"

#include <QPainter>
#include <algorithm>

#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/Symbol.h"
#include "controls/TextBlock.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kMostLines = 3;
constexpr int kPadding = 10;  // above and below the text
constexpr int kSymbolX = 14;
constexpr int kSymbolSize = 20;
constexpr int kTextX = 46;
constexpr int kTextToButton = 12;
constexpr int kButtonPadding = 12;
constexpr QColor kSymbolColor{0xFF, 0xB4, 0x5E};
constexpr QColor kTextColor{0xDE, 0xDE, 0xE2};

int buttonHeight() { return theme::grown(28); }

}  // namespace

MicrophoneNotice::MicrophoneNotice(QWidget* parent)
    : QWidget(parent),
      m_text(new TextBlock(theme::kRowStyle, kTextColor, kMostLines, this)),
      m_grant(new PushButton("Grant Access", look::kPrimary, this)) {
    m_text->setText("Microphone permission required for live spectrum sampling.");
    connect(m_grant, &QAbstractButton::clicked, this, &MicrophoneNotice::grantAccess);
}

int MicrophoneNotice::buttonWidth() const { return m_grant->widthWith(kButtonPadding); }

int MicrophoneNotice::textWidthWithin(int width) const {
    return width - kTextX - kTextToButton - buttonWidth() - theme::kCardPadding;
}

int MicrophoneNotice::heightWithin(int width) const {
    return std::max(m_text->heightWithin(textWidthWithin(width)), buttonHeight()) + 2 * kPadding;
}

PushControl& MicrophoneNotice::button() const { return *m_grant; }

void MicrophoneNotice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
    const QRectF frame(kSymbolX, (height() - kSymbolSize) / 2.0, kSymbolSize, kSymbolSize);
    paintSymbol(painter, frame, "mic.slash.fill", kSymbolColor);
}

void MicrophoneNotice::resizeEvent(QResizeEvent*) {
    m_text->setGeometry(kTextX, kPadding, textWidthWithin(width()), height() - 2 * kPadding);
    m_grant->setGeometry(width() - theme::kCardPadding - buttonWidth(), (height() - buttonHeight()) / 2, buttonWidth(),
                         buttonHeight());
}

}  // namespace lumo
