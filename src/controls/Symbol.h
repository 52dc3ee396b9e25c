// A one-colour symbol from the program's own drawings.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

namespace lumo {

/// Main thread. The shape is drawn from its source once for each size, and only tinted afterwards.
class Symbol final {
public:
    /// `name` as in symbols/, without the ending. An unknown name is a mistake of ours and paints nothing.
    explicit Symbol(const QString& name) : m_path(":/symbols/" + name + ".svg") {}

    void paint(QPainter& painter, const QRectF& rect, const QColor& tint);

private:
    void drawShape(QSize pixels);

    QString m_path;
    QImage m_shape;
};

}  // namespace lumo
