// How a text style becomes letters: sizes between whole pixels, figures of equal width, letters where they belong.
#pragma once

#include <QFont>
#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <QTextLayout>

#include "controls/Theme.h"

namespace lumo {

/// Main thread. A value.
class Lettering final {
public:
    explicit Lettering(const theme::TextStyle& style);

    [[nodiscard]] double widthOf(const QString& text) const;
    /// The text, or what of it fits with an ellipsis.
    [[nodiscard]] QString elided(const QString& text, double width) const;

    /// In the painter's pen, at x = `rect.left()`, the line centred in the height of `rect`.
    void paint(QPainter& painter, const QRectF& rect, const QString& text) const;

    /// The letters as shapes, from the foot of the first.
    [[nodiscard]] QPainterPath outlines(const QString& text) const;

    /// For breaking lines: a font, what of a text is set in another one, and how many of its units a point has.
    [[nodiscard]] const QFont& font() const { return m_font; }
    [[nodiscard]] QList<QTextLayout::FormatRange> formats(const QString& text) const;
    [[nodiscard]] double unitsPerPoint() const { return 1.0 / m_scale; }

private:
    [[nodiscard]] double advanceOf(QChar letter) const;
    [[nodiscard]] QString set(const QString& text) const;
    /// With the painter at the foot of the first, in the font's own size.
    void paintLetters(QPainter& painter, const QString& text) const;

    QFont m_font;
    double m_scale;  // from the font's size to the style's
    bool m_isTabular;
    bool m_isMonospaced;  // such fonts form no other signs
};

/// As the letters are set: some fonts turn the x of a hexadecimal number into a sign of multiplication.
[[nodiscard]] QString typeset(const QString& text);

}  // namespace lumo
