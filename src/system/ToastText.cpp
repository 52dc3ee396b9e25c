#include "system/ToastText.h"

#include <QPainter>
#include <utility>

#include "controls/Theme.h"

namespace lumo {
namespace {

int titleLine() { return theme::kToastTitleStyle.linePx(); }

int detailLine() { return theme::kDescriptionStyle.linePx(); }

}  // namespace

int ToastText::textHeight() { return titleLine() + detailLine(); }

ToastText::ToastText(QString title, QString detail, QWidget* parent)
    : PushControl(title + ' ' + detail, QAccessible::PushButton, parent),
      m_title(std::move(title)),
      m_detail(std::move(detail)),
      m_titleLettering(theme::kToastTitleStyle),
      m_detailLettering(theme::kDescriptionStyle) {
    setCursor(Qt::PointingHandCursor);
}

RingShape ToastText::ringShape() const { return ringAround(rect(), theme::kSmallRadius); }

bool ToastText::isElided() const {
    return m_titleLettering.widthOf(m_title) > width() || m_detailLettering.widthOf(m_detail) > width();
}

QString ToastText::toolTipText() const { return isElided() ? text() : QString(); }

void ToastText::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF both(0.0, (height() - titleLine() - detailLine()) / 2.0, width(), titleLine() + detailLine());
    painter.setPen(mix(theme::kText, Qt::white, hover()));
    m_titleLettering.paint(painter, both.adjusted(0, 0, 0, -detailLine()), m_titleLettering.elided(m_title, width()));
    painter.setPen(mix(theme::kTextBody, theme::kText, hover() * (1.0 - press())));
    m_detailLettering.paint(painter, both.adjusted(0, titleLine(), 0, 0), m_detailLettering.elided(m_detail, width()));
}

}  // namespace lumo
