// One-colour symbols by name: the system's own where it has them, the program's drawings elsewhere.
#pragma once

#include <QColor>
#include <QPainter>
#include <QString>

namespace lumo {

/// `name` as in symbols/, without the ending; an unknown one is a mistake of ours and paints nothing. Stretches the
/// square drawing over `rect`. Main thread.
void paintSymbol(QPainter& painter, const QRectF& rect, const QString& name, const QColor& tint);

}  // namespace lumo
