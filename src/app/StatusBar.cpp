#include "app/StatusBar.h"

#include <QPainter>

#include "app/StatusChip.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kLineHeight = 1;
constexpr int kGap = 14;  // on both sides of a separator, and behind the message
constexpr int kChipGap = 8;
constexpr int kSeparatorHeight = 12;
constexpr int kLeastMessage = 100;

int centred(int height) { return kLineHeight + (StatusBar::barHeight() - kLineHeight - height) / 2; }

void placeAt(QWidget& item, int x, int width) {
    const int height = item.sizeHint().height();
    item.setGeometry(x, centred(height), width, height);
}

/// Returns where the item begins.
int placeBefore(QWidget& item, int right, int width) {
    placeAt(item, right - width, width);
    return right - width;
}

int placeBefore(QWidget& item, int right) { return placeBefore(item, right, item.sizeHint().width()); }

}  // namespace

int StatusBar::barHeight() { return theme::grown(28); }

StatusBar::StatusBar(QWidget* parent)
    : QWidget(parent),
      m_message(new TextLine(theme::kFineStyle, theme::kTextStatus, this)),
      m_audio(new StatusChip("Audio Sync", this)),
      m_keys(new StatusChip("Macro Tap", this)) {
    addFixedText("Protocol: SinoWealth K916 (BYCOMBO4)");
    addFixedText("VID: 0x258A | PID: 0x010C");
}

void StatusBar::addFixedText(std::string_view text) {
    auto* line = new TextLine(theme::kFineStyle, theme::kTextFixed, this);
    line->setText(text);
    m_fixedTexts.push_front(line);
}

void StatusBar::setMessage(std::string_view message) {
    // The change of its name is told by the line itself.
    if (m_message->setText(message)) announce(*m_message, m_message->text());
}

void StatusBar::setGrants(bool microphone, bool keys) {
    m_audio->setGranted(microphone);
    m_keys->setGranted(keys);
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

/// What the fixed texts have to give up, so that something of the message can be read.
int StatusBar::missingWidth() const {
    int needed = theme::kWindowMargin + kLeastMessage + kGap + m_audio->sizeHint().width() + kChipGap +
                 m_keys->sizeHint().width() + theme::kWindowMargin;
    for (const TextLine* const text : m_fixedTexts) needed += kGap + 1 + kGap + text->sizeHint().width();
    return std::max(0, needed - width());
}

void StatusBar::resizeEvent(QResizeEvent*) {
    m_separators.clear();
    int right = width() - theme::kWindowMargin;
    int missing = missingWidth();
    for (TextLine* text : m_fixedTexts) {
        const int whole = text->sizeHint().width();
        const int shown = std::max(0, whole - missing);
        missing -= whole - shown;
        m_separators.push_back(placeBefore(*text, right, shown) - kGap - 1);
        right = m_separators.back() - kGap;
    }
    const int chips = placeBefore(*m_audio, placeBefore(*m_keys, right) - kChipGap);
    placeAt(*m_message, theme::kWindowMargin, chips - kGap - theme::kWindowMargin);
}

}  // namespace lumo
