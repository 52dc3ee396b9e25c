#include "app/PageArea.h"

#include <QPainter>

#include "controls/Fade.h"
#include "controls/Motion.h"
#include "controls/Theme.h"

namespace lumo {

PageVeil::PageVeil(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_thickness.setStartValue(1.0);
    m_thickness.setEndValue(0.0);
    m_thickness.setEasingCurve(QEasingCurve::OutQuad);
    connect(&m_thickness, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&m_thickness, &QVariantAnimation::finished, this, &QWidget::hide);
}

void PageVeil::lift() {
    m_thickness.stop();
    m_thickness.setDuration(motionIsReduced() ? theme::kReducedPageMs : theme::kPageMs);
    setGeometry(parentWidget()->rect());
    raise();
    show();
    m_thickness.start();
}

void PageVeil::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), faded(theme::kWindow, m_thickness.currentValue().toDouble()));
}

PageArea::PageArea(QWidget* parent) : QWidget(parent), m_veil(new PageVeil(this)) {}

void PageArea::setPage(QWidget* page) {
    const bool isFirst = !m_page;
    if (m_page) {
        m_page->hide();
        m_page->deleteLater();  // what changes the page may come out of the page itself
    }
    m_page = page;
    if (!page) return;
    page->setParent(this);
    page->setGeometry(rect());
    page->show();
    if (!isFirst && isVisible()) m_veil->lift();
}

void PageArea::resizeEvent(QResizeEvent*) {
    if (m_page) m_page->setGeometry(rect());
    m_veil->setGeometry(rect());
}

}  // namespace lumo
