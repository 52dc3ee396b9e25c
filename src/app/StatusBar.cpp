#include "app/StatusBar.h"

#include <QPainter>

#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kLineHeight = 1;
constexpr int kGap = 14;  // on both sides of a separator
constexpr int kSeparatorHeight = 12;

int centred(int height) { return kLineHeight + (StatusBar::kHeight - kLineHeight - height) / 2; }

int placeAt(TextLine& line, int x, int width) {
    const int height = line.sizeHint().height();
    line.setGeometry(x, centred(height), width, height);
    return x;
}

/// The message's own change of name is told by its label. Newer Qt also speaks it without the focus being there.
void announce([[maybe_unused]] TextLine& message) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&message, message.text());
    QAccessible::updateAccessibility(&event);
#endif
}

}  // namespace

StatusBar::StatusBar(QWidget* parent)
    : QWidget(parent), m_message(new TextLine(theme::kFineStyle, theme::kTextStatus, this)) {
    addFixedText("Protocol: SinoWealth K916 (BYCOMBO4)");
    addFixedText("VID: 0x258A | PID: 0x010C");
}

void StatusBar::addFixedText(std::string_view text) {
    auto* line = new TextLine(theme::kFineStyle, theme::kTextFixed, this);
    line->setText(text);
    m_fixedTexts.push_front(line);
}

void StatusBar::setMessage(std::string_view message) {
    if (m_message->setText(message)) announce(*m_message);
}

QAccessibleInterface* StatusBar::makeAccessible() { return new QAccessibleWidget(this, QAccessible::StatusBar); }

void StatusBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::kBar);
    painter.fillRect(0, 0, width(), kLineHeight, theme::kStatusLine);
    for (const int x : m_separators) {
        painter.fillRect(x, centred(kSeparatorHeight), 1, kSeparatorHeight, theme::kStatusSeparator);
    }
}

void StatusBar::resizeEvent(QResizeEvent*) {
    m_separators.clear();
    int right = width() - theme::kWindowMargin;
    for (TextLine* text : m_fixedTexts) {
        const int textWidth = text->sizeHint().width();
        m_separators.push_back(placeAt(*text, right - textWidth, textWidth) - kGap - 1);
        right = m_separators.back() - kGap;
    }
    placeAt(*m_message, theme::kWindowMargin, right - theme::kWindowMargin);
}

}  // namespace lumo
