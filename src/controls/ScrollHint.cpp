#include "controls/ScrollHint.h"

#include <QLinearGradient>
#include <QPainter>
#include <QScrollBar>

#include "controls/Fade.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kHeight = 40;

}  // namespace

ScrollHint::ScrollHint(QScrollBar& followed, QWidget* viewport) : QWidget(viewport), m_followed(followed) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&followed, &QScrollBar::rangeChanged, this, &ScrollHint::follow);
    connect(&followed, &QScrollBar::valueChanged, this, &ScrollHint::follow);
    follow();
}

void ScrollHint::follow() {
    setGeometry(0, parentWidget()->height() - kHeight, parentWidget()->width(), kHeight);
    setVisible(m_followed.value() < m_followed.maximum());
}

void ScrollHint::paintEvent(QPaintEvent*) {
    QLinearGradient fade(0.0, 0.0, 0.0, height());
    fade.setColorAt(0.0, faded(theme::kWindow, 0.0));
    fade.setColorAt(1.0, theme::kWindow);
    QPainter(this).fillRect(rect(), fade);
}

}  // namespace lumo
