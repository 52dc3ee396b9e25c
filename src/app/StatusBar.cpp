#include "app/StatusBar.h"

#include <QPainter>

#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kLineHeight = 1;

/// The message's own change of name is told by its label. Newer Qt also speaks it without the focus being there.
void announce([[maybe_unused]] TextLine& message) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&message, message.text());
    QAccessible::updateAccessibility(&event);
#endif
}

}  // namespace

StatusBar::StatusBar(QWidget* parent)
    : QWidget(parent), m_message(new TextLine(theme::kFineStyle, theme::kTextStatus, this)) {}

void StatusBar::setMessage(std::string_view message) {
    if (m_message->setText(message)) announce(*m_message);
}

QAccessibleInterface* StatusBar::makeAccessible() { return new QAccessibleWidget(this, QAccessible::StatusBar); }

void StatusBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::kBar);
    painter.fillRect(0, 0, width(), kLineHeight, theme::kStatusLine);
}

void StatusBar::resizeEvent(QResizeEvent*) {
    const int lineHeight = m_message->sizeHint().height();
    m_message->setGeometry(theme::kWindowMargin, kLineHeight + (kHeight - kLineHeight - lineHeight) / 2,
                           width() - 2 * theme::kWindowMargin, lineHeight);
}

}  // namespace lumo
