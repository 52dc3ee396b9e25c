#include "macro/TimelineHeading.h"

#include <QHelpEvent>
#include <QPainter>

#include "controls/PlainText.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr auto kHeading = "TIMELINE:";
constexpr double kGap = 3.0;

}  // namespace

TimelineHeading::TimelineHeading(QWidget* parent)
    : QWidget(parent), m_headingLettering(theme::kSectionStyle), m_nameLettering(theme::kMacroNameStyle) {
    setAccessibleName(kHeading);
}

void TimelineHeading::setMacroName(std::string_view name) {
    const QString shown = plainText(name);
    if (shown == m_name) return;
    m_name = shown;
    setAccessibleName(QString("%1 %2").arg(kHeading, m_name));
    update();
}

QAccessibleInterface* TimelineHeading::makeAccessible() { return new QAccessibleWidget(this, QAccessible::StaticText); }

double TimelineHeading::nameX() const { return m_headingLettering.widthOf(kHeading) + kGap; }

QString TimelineHeading::shownName() const { return m_nameLettering.elided(m_name, width() - nameX()); }

bool TimelineHeading::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const bool isElided = shownName() != m_name;
    showPlainToolTip(static_cast<QHelpEvent*>(event)->globalPos(), isElided ? accessibleName() : QString(), this);
    return true;
}

void TimelineHeading::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(theme::kTextSection);
    m_headingLettering.paint(painter, rect(), kHeading);
    painter.setPen(theme::kText);
    m_nameLettering.paint(painter, QRectF(rect()).adjusted(nameX(), 0.0, 0.0, 0.0), shownName());
}

}  // namespace lumo
