#include "keyboard/KeyLegend.h"

#include <string_view>

#include "controls/Lettering.h"

namespace lumo {
namespace {

constexpr double kFnSize = 7.4;
constexpr double kMiddleToBaseline = 0.36;  // of the size
constexpr double kBaselineAboveFn = 12.2;   // from the face's top

double sizeFor(const QString& text, double keyWidth) {
    if (text.size() == 1) return 12.5;
    if (text.size() <= 3) return 9.5;
    return text.size() >= 6 && keyWidth <= 34.0 ? 8.1 : 8.6;
}

QPainterPath centred(const QString& text, double size, double x, double baseline) {
    const Lettering letters({.designedPx = size, .weight = QFont::Medium, .isInPicture = true});
    return letters.outlines(text).translated(x - letters.widthOf(text) / 2.0, baseline);
}

QString textOf(std::string_view utf8) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); }

}  // namespace

double legendRise(const KeyCap& key, const QRectF& face) {
    if (key.fnLabel.empty()) return 0.0;
    return face.height() / 2.0 - kBaselineAboveFn + kMiddleToBaseline * sizeFor(textOf(key.label), key.width);
}

KeyLegend legendOf(const KeyCap& key, const QRectF& face) {
    const QString text = textOf(key.label);
    const double size = sizeFor(text, key.width);
    const double middle = face.center().x();
    const double baseline = face.center().y() - legendRise(key, face) + kMiddleToBaseline * size;
    if (key.fnLabel.empty()) return {centred(text, size, middle, baseline), {}};
    return {centred(text, size, middle, baseline), centred(textOf(key.fnLabel), kFnSize, middle, face.bottom() - 3.2)};
}

}  // namespace lumo
