#include "controls/ScrollBox.h"

#include <QApplication>

#include "controls/FocusRing.h"
#include "controls/ScrollBar.h"

namespace lumo {
namespace {

ScrollBox* boxAround(const QWidget& widget) {
    for (QWidget* at = widget.parentWidget(); at; at = at->parentWidget()) {
        if (auto* const box = qobject_cast<ScrollBox*>(at)) return box;
    }
    return nullptr;
}

}  // namespace

ScrollBox::ScrollBox(const Measures& measures, QWidget* parent)
    : QScrollArea(parent), m_measures(measures), m_bar(new ScrollBar(*verticalScrollBar(), this)) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // ours stands in the margin
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { showFocused(now); });
}

void ScrollBox::place(const QRect& content, int rightEdge) {
    setViewportMargins(0, 0, rightEdge - content.x() - content.width(), 0);
    setGeometry(content.x(), content.y(), rightEdge - content.x(), content.height());
}

void ScrollBox::bringIntoView(const QWidget& widget, const QRect& part) {
    for (ScrollBox* box = boxAround(widget); box; box = boxAround(*box)) {
        if (box->widget()) box->scrollTo({widget.mapTo(box->widget(), part.topLeft()), part.size()});
    }
}

void ScrollBox::showFocused(QWidget* focused) {
    if (!focused || boxAround(*focused) != this) return;
    // Not for the mouse: what is pressed must not move away below it.
    const auto* const wearer = dynamic_cast<const RingWearer*>(focused);
    if (const auto ring = wearer ? wearer->ring() : std::nullopt) {
        bringIntoView(*focused, ring->outer.toAlignedRect());
    }
}

void ScrollBox::scrollTo(const QRect& inContent) {
    ensureVisible(0, inContent.bottom() + 1, 0, m_measures.ringMargin);
    ensureVisible(0, inContent.top(), 0, m_measures.ringMargin);
}

void ScrollBox::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    m_bar->setGeometry(width() - m_measures.barToEdge - ScrollBar::kThickness, 0, ScrollBar::kThickness, height());
}

}  // namespace lumo
