#include "app/PageArea.h"

#include <QApplication>

#include "app/PageVeil.h"
#include "controls/FocusRing.h"
#include "controls/ScrollBar.h"
#include "controls/ScrollHint.h"

namespace lumo {
namespace {

constexpr int kBarToEdge = 4;
constexpr int kFocusMargin = 12;

}  // namespace

PageArea::PageArea(QWidget* parent)
    : QScrollArea(parent),
      m_veil(new PageVeil(viewport())),
      m_hint(new ScrollHint(*verticalScrollBar(), viewport())),
      m_bar(new ScrollBar(*verticalScrollBar(), this)) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // ours stands at the window's edge
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { showFocused(now); });
}

void PageArea::showFocused(QWidget* focused) {
    if (!focused || !viewport()->isAncestorOf(focused)) return;
    // Not for the mouse: what is pressed must not move away below it.
    const auto* const wearer = dynamic_cast<const RingWearer*>(focused);
    if (wearer && wearer->ring()) ensureWidgetVisible(focused, 0, kFocusMargin);
}

void PageArea::setPage(QWidget* page) {
    const bool isFirst = !widget();
    if (QWidget* const before = takeWidget()) {
        before->hide();
        before->deleteLater();  // what changes the page may come out of the page itself
    }
    if (!page) return;
    setWidget(page);
    page->setAutoFillBackground(false);
    page->show();
    m_hint->raise();
    if (!isFirst && isVisible()) m_veil->lift();
}

void PageArea::place(const QRect& page, int rightEdge) {
    setViewportMargins(0, 0, rightEdge - page.x() - page.width(), 0);
    setGeometry(page.x(), page.y(), rightEdge - page.x(), page.height());
}

void PageArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    m_veil->setGeometry(viewport()->rect());
    m_hint->follow();
    m_bar->setGeometry(width() - kBarToEdge - ScrollBar::kThickness, 0, ScrollBar::kThickness, height());
}

}  // namespace lumo
