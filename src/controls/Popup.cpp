#include "controls/Popup.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>

#include "controls/Fade.h"
#include "controls/LowStripes.h"
#include "controls/PushControl.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kShadowOpacity = 0.55;
constexpr double kShadowSigma = 32.0;
constexpr double kShadowDrop = 24.0;

class AccessiblePopup final : public QAccessibleWidget {
public:
    explicit AccessiblePopup(Popup& popup) : QAccessibleWidget(&popup, QAccessible::Dialog) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = true;
        return state;
    }
};

bool wearsRing(QWidget* widget) {
    const auto* const wearer = dynamic_cast<const RingWearer*>(widget);
    return wearer && wearer->ring();
}

bool isPointerEvent(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
            return true;
        default:
            return false;
    }
}

}  // namespace

Popup::Popup(const QString& heading, QWidget* card, QWidget& ground, PushControl& first, PushControl& second,
             QWidget* parent)
    : QWidget(parent),
      m_card(card),
      m_ground(ground),
      m_first(first),
      m_second(second),
      m_opacity(new QGraphicsOpacityEffect(card)),
      m_shadow(kShadowOpacity, kShadowSigma, kShadowDrop),
      m_dimming(theme::kBackdropInMs, [this] { followAppearance(); }),
      m_coming(theme::kPromptInMs, [this] { followAppearance(); }) {
    setAccessibleName(heading);
    card->setParent(this);
    card->setGraphicsEffect(m_opacity);
    hide();
}

void Popup::setShown(bool isShown) {
    if (isShown == this->isShown()) return;
    // What is on its way out stands in nobody's way.
    setAttribute(Qt::WA_TransparentForMouseEvents, !isShown);
    for (PushControl* const button : {&m_first, &m_second}) {
        button->setFocusPolicy(isShown ? Qt::StrongFocus : Qt::NoFocus);
    }
    if (isShown) {
        show();
        takeFocus();
        QAccessibleEvent opened(this, QAccessible::DialogStart);
        QAccessible::updateAccessibility(&opened);
        announce(*this, accessibleName());
    } else {
        giveFocusBack();
        QAccessibleEvent closed(this, QAccessible::DialogEnd);
        QAccessible::updateAccessibility(&closed);
    }
    m_dimming.setShown(isShown);
    m_coming.setShown(isShown);
}

void Popup::takeFocus() {
    m_focusBefore = window()->focusWidget();
    m_first.setFocus(wearsRing(m_focusBefore) ? Qt::TabFocusReason : Qt::PopupFocusReason);
}

void Popup::giveFocusBack() {
    if (!isAncestorOf(window()->focusWidget())) return;
    const bool canTakeIt = m_focusBefore && m_focusBefore->isVisible() && m_focusBefore->focusPolicy() != Qt::NoFocus;
    (canTakeIt ? m_focusBefore.data() : parentWidget())->setFocus(Qt::PopupFocusReason);
}

void Popup::followAppearance() {
    if (m_coming.isGone() && m_dimming.isGone()) {
        m_shadow.forget();
        return hide();
    }
    const bool isAllThere = m_coming.share() == 1.0;
    m_opacity->setEnabled(!isAllThere);
    m_ground.setAttribute(Qt::WA_OpaquePaintEvent, isAllThere);  // Qt would forget that the effect lets through
    m_opacity->setOpacity(m_coming.share());
    m_card->move(cardCorner());
    update();
}

QPoint Popup::cardCorner() const {
    QRect place = m_card->rect();
    place.moveCenter(rect().center());
    return place.topLeft() + QPoint(0, qRound(m_coming.drop()));
}

QAccessibleInterface* Popup::makeAccessible() { return new AccessiblePopup(*this); }

bool Popup::event(QEvent* event) {
    if (isPointerEvent(event->type())) return true;
    return QWidget::event(event);
}

bool Popup::focusNextPrevChild(bool isNext) {
    PushControl& next = m_first.hasFocus() ? m_second : m_first;
    next.setFocus(isNext ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void Popup::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !event->isAutoRepeat()) m_second.click();
    event->accept();  // nothing behind hears the keys
}

void Popup::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QColor backdrop = faded(theme::kBackdrop, m_dimming.share());
    for (const QRect& stripe : lowStripes(event->region())) {
        painter.setClipRect(stripe);
        painter.setOpacity(1.0);
        painter.fillRect(stripe, backdrop);
        painter.setOpacity(m_coming.share());
        m_shadow.paint(painter, m_card->geometry());
    }
}

void Popup::resizeEvent(QResizeEvent*) { m_card->move(cardCorner()); }

}  // namespace lumo
