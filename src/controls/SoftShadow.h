// The blurred shadow below something that lies above the page.
#pragma once

#include <QPainter>
#include <QPixmap>

namespace lumo {

/// Main thread. Kept from one painting to the next; made anew for another size or scale.
class SoftShadow final {
public:
    /// Black at that opacity (0 to 1), blurred with that sigma, `drop` points below what casts it.
    SoftShadow(double opacity, double sigma, double drop) : m_opacity(opacity), m_sigma(sigma), m_drop(drop) {}

    /// Below a box in that place.
    void paint(QPainter& painter, const QRectF& box);
    /// Where it is seen.
    [[nodiscard]] QRectF reach(const QRectF& box) const;
    /// For a box of that size.
    [[nodiscard]] const QPixmap& pictureFor(const QSizeF& box, double scale);
    /// Gives its memory back.
    void forget() { m_picture = {}; }

private:
    [[nodiscard]] QPixmap draw(const QSizeF& box, double scale) const;

    double m_opacity;
    double m_sigma;
    double m_drop;
    QPixmap m_picture;
    QSizeF m_box;  // that the picture was made for
};

}  // namespace lumo
