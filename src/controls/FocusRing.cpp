#include "controls/FocusRing.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <utility>

#include "controls/Panel.h"

namespace lumo {
namespace {

constexpr double kGap = 2.0;
constexpr double kWidth = 2.0;

QEvent::Type ringMoved() {
    static const auto kType = static_cast<QEvent::Type>(QEvent::registerEventType());
    return kType;
}

/// What may move the control, or change whether it wears the ring.
bool concernsRing(QEvent::Type type) {
    if (type == ringMoved()) return true;
    switch (type) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::ParentChange:
        case QEvent::FocusIn:
        case QEvent::FocusOut:
        case QEvent::MouseButtonPress:
        case QEvent::KeyPress:
            return true;
        default:
            return false;
    }
}

/// Where a ring of that control can be seen: an area that scrolls hides what is beyond its edges.
QRect visiblePart(const QWidget& view, const QWidget& control) {
    constexpr int kOut = static_cast<int>(kGap + kWidth);
    QRect visible = view.rect();
    for (const QWidget* at = &control; at != &view; at = at->parentWidget()) {
        const auto* const area = qobject_cast<const QAbstractScrollArea*>(at->parentWidget());
        if (!area || area->viewport() != at) continue;
        visible &= QRect(at->mapTo(&view, QPoint()), at->size()).adjusted(-kOut, -kOut, kOut, kOut);
    }
    return visible;
}

}  // namespace

RingShape RingWearer::ringAround(const QRectF& control, double radius) {
    constexpr double kOut = kGap + kWidth;
    return {control.adjusted(-kOut, -kOut, kOut, kOut), radius + kOut};
}

void RingWearer::tellOfRing(QWidget& wearer) {
    QEvent moved(ringMoved());
    QCoreApplication::sendEvent(&wearer, &moved);
}

FocusRing::FocusRing(QWidget& view) : QWidget(&view) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusRing::follow(QWidget* focused) {
    for (QWidget* at = m_focused; at && at != parentWidget(); at = at->parentWidget()) at->removeEventFilter(this);
    m_focused = focused && parentWidget()->isAncestorOf(focused) ? focused : nullptr;
    for (QWidget* at = m_focused; at && at != parentWidget(); at = at->parentWidget()) at->installEventFilter(this);
    requestPlace();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    if (concernsRing(event->type())) requestPlace();
    return QWidget::eventFilter(watched, event);
}

void FocusRing::requestPlace() {
    if (std::exchange(m_isPlacePending, true)) return;
    QMetaObject::invokeMethod(this, &FocusRing::place, Qt::QueuedConnection);
}

void FocusRing::place() {
    m_isPlacePending = false;
    const auto* const wearer = dynamic_cast<const RingWearer*>(m_focused.data());
    m_shape = wearer && m_focused->isVisible() ? wearer->ring() : std::nullopt;
    setVisible(m_shape.has_value());
    if (!m_shape) return;
    const QRectF inView = m_shape->outer.translated(m_focused->mapTo(parentWidget(), QPointF()));
    setGeometry(inView.toAlignedRect() & visiblePart(*parentWidget(), *m_focused));
    m_shape->outer = inView.translated(-pos());
    raise();
    update();
}

void FocusRing::paintEvent(QPaintEvent*) {
    if (!m_shape) return;
    QPainter painter(this);
    paintFocusRing(painter, m_shape->outer, m_shape->radius);
}

}  // namespace lumo
