#include "controls/DropShadow.h"

#include <QEvent>
#include <QPainter>
#include <utility>

namespace lumo {

DropShadow::DropShadow(QWidget& caster, SoftShadow shadow)
    : QWidget(caster.parentWidget()), m_caster(caster), m_shadow(std::move(shadow)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setVisible(!caster.isHidden());
    stackUnder(&caster);
    caster.installEventFilter(this);
}

void DropShadow::setShare(double share) {
    m_share = share;
    update();
}

bool DropShadow::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
            follow();
            break;
        case QEvent::ShowToParent:
            show();
            break;
        case QEvent::HideToParent:
            hide();
            m_shadow.forget();
            break;
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

void DropShadow::follow() { setGeometry(m_shadow.reach(m_caster.geometry()).toAlignedRect()); }

void DropShadow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setOpacity(m_share);
    m_shadow.paint(painter, QRectF(m_caster.geometry()).translated(-pos()));
}

}  // namespace lumo
