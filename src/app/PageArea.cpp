#include "app/PageArea.h"

#include <QScrollBar>

#include "app/PageVeil.h"
#include "controls/LeavingFocus.h"
#include "controls/ScrollHint.h"

namespace lumo {
namespace {

constexpr int kBarToEdge = 4;
constexpr int kRingMargin = 8;

}  // namespace

PageArea::PageArea(QWidget* parent)
    : ScrollBox({.barToEdge = kBarToEdge, .ringMargin = kRingMargin}, parent),
      m_veil(new PageVeil(viewport())),
      m_hint(new ScrollHint(*verticalScrollBar(), viewport())) {}

void PageArea::setPage(QWidget* page) {
    const bool isFirst = !widget();
    if (!isFirst) letGoOfFocus(*this);
    if (QWidget* const before = takeWidget()) {
        before->hide();
        before->deleteLater();  // what changes the page may come out of the page itself
    }
    setWidget(page);
    page->setAutoFillBackground(false);
    page->show();
    m_hint->raise();
    if (!isFirst && isVisible()) m_veil->lift();
}

void PageArea::resizeEvent(QResizeEvent* event) {
    ScrollBox::resizeEvent(event);
    m_veil->setGeometry(viewport()->rect());
    m_hint->follow();
}

}  // namespace lumo
