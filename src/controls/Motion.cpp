#include "controls/Motion.h"

#include <QApplication>
#include <QStyle>

#include "platform/qt/WindowSystem.h"

namespace lumo {

bool motionIsReduced() {
    return window_system::prefersReducedMotion() ||
           QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) <= 0;
}

}  // namespace lumo
