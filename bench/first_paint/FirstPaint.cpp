#include "first_paint/FirstPaint.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace lumo::bench {

FirstPaint::FirstPaint(QString path) : m_path(std::move(path)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
    QCoreApplication::instance()->removeEventFilter(this);
    QMetaObject::invokeMethod(this, &FirstPaint::write, Qt::QueuedConnection);
    return false;
}

void FirstPaint::write() {
    if (m_path.isEmpty()) std::_Exit(EXIT_SUCCESS);
    const std::chrono::nanoseconds now = std::chrono::steady_clock::now().time_since_epoch();
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray::number(static_cast<qlonglong>(now.count()))) < 0)
        qWarning("The time of the first painting cannot be written to \"%s\".", qPrintable(m_path));
}

}  // namespace lumo::bench
