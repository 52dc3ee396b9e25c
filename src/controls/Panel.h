// Rounded surfaces with a line on their inner edge, and the ring of keyboard focus.
#pragma once

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QRectF>

namespace lumo {

/// Fills the rounded rectangle and draws the 1 point line inside it.
void paintPanel(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill, const QColor& line);

/// The surface of a part of a page.
void paintCard(QPainter& painter, const QRectF& rect);

/// A 2 point ring whose outer edge is `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, double outerRadius);

/// Whether a control that receives the focus for that reason shows the ring; `before` is what it showed last.
/// Only the keyboard shows it: a window or a menu that gives the focus back changes nothing.
[[nodiscard]] bool showsFocusRing(Qt::FocusReason reason, bool before);

}  // namespace lumo
