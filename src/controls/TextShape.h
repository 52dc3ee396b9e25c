// A line of text in outlines: which letters stand where.
#pragma once

#include <QChar>
#include <QFont>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <vector>

namespace lumo {

/// Parts letters that would change each other's shape; shows nothing.
inline constexpr QChar kZeroWidthNonJoiner(0x200C);

struct TextShape {
    struct Letter {
        const QPainterPath* outline = nullptr;  // around the letter's own foot; kept as long as the thread
        QPointF foot;
    };

    std::vector<Letter> letters;
    double advance = 0.0;  // from the foot of the first letter to where a next one would stand

    [[nodiscard]] QPainterPath outlines() const;
};

/// In pixels of the font, from the foot of the first letter. Any thread; each keeps what it worked out lately. Valid
/// until the same thread asks for another one.
[[nodiscard]] const TextShape& textShape(const QString& text, const QFont& font);

}  // namespace lumo
