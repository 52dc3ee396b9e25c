#include "controls/Lettering.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "controls/TextShape.h"

namespace lumo {
namespace {

#ifdef Q_OS_MACOS
/// From the font's size to the style's. Qt's fonts come in whole pixels: one between two is a large one, scaled down.
double scaleFor(double sizePx) {
    constexpr double kFractionScale = 0.1;
    return sizePx == std::floor(sizePx) ? 1.0 : kFractionScale;
}
#else
/// From the font's size to the style's. Outlines are the same at every size, and each size is a font of its own, which
/// takes longer to be found and opened than a page does to be lettered: all are one large font, scaled down.
double scaleFor(double sizePx) {
    constexpr double kFontPx = 100.0;
    return sizePx / kFontPx;
}
#endif

/// Letters that stand on a whole row of pixels are sharp at their feet.
QPointF onWholePixel(const QPainter& painter, QPointF baseline) {
    const QTransform toPixels = painter.deviceTransform();
    QPointF pixel = toPixels.map(baseline);
    pixel.setY(std::round(pixel.y()));
    return toPixels.inverted().map(pixel);
}

#ifdef Q_OS_MACOS
// The system finds the font of an emoji by itself, and draws both alike.
QList<QTextLayout::FormatRange> emojiFormats(const QString&, const QFont&) { return {}; }

void drawLetters(QPainter& painter, const QPointF& baseline, const QString& text) { painter.drawText(baseline, text); }
#else
/// How many units of the text, from the beginning, form one emoji; 0 where it begins with a letter.
qsizetype emojiAtFront(QStringView text) {
    constexpr char32_t kFirstPictograph = 0x1F000;
    constexpr QChar kAsEmoji(0xFE0F);
    const bool isPair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    const qsizetype units = isPair ? 2 : 1;
    const bool isPictograph = isPair && QChar::surrogateToUcs4(text[0], text[1]) >= kFirstPictograph;
    if (text.size() > units && text[units] == kAsEmoji) return units + 1;
    return isPictograph ? units : 0;
}

qsizetype lettersAtFront(QStringView text) {
    qsizetype letters = 0;
    while (letters < text.size() && emojiAtFront(text.sliced(letters)) == 0) ++letters;
    return letters;
}

/// FreeType thickens the stems of fonts like Inter: as glyphs on a dark ground, regular would look semibold.
void drawOutlines(QPainter& painter, const QPointF& baseline, const QString& text) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QBrush brush = painter.pen().brush();
    // One by one: what Qt's filling costs grows with all that it finds on a row, and much of it goes to other threads.
    for (const TextShape::Letter& letter : textShape(text, painter.font()).letters) {
        painter.fillPath(letter.outline->translated(baseline + letter.foot), brush);
    }
}

/// Other fonts may have the same sign in black and white, and would come first.
QFont emojiFont(QFont font) {
    font.setFamilies(QStringList{"Noto Color Emoji"} + font.families());
    return font;
}

QList<QTextLayout::FormatRange> emojiFormats(const QString& text, const QFont& font) {
    QList<QTextLayout::FormatRange> formats;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = emojiAtFront(QStringView(text).sliced(at));
        if (length > 0) {
            QTextLayout::FormatRange range{static_cast<int>(at), static_cast<int>(length), {}};
            range.format.setFont(emojiFont(font));
            formats += range;
        }
        at += std::max<qsizetype>(length, 1);
    }
    return formats;
}

/// Emojis have no outlines: they are pictures in colours of their own.
void drawEmoji(QPainter& painter, const QPointF& baseline, const QString& text) {
    const QFont letters = painter.font();
    painter.setFont(emojiFont(letters));
    painter.drawText(baseline, text);
    painter.setFont(letters);
}

void drawLetters(QPainter& painter, QPointF baseline, QStringView text) {
    while (!text.isEmpty()) {
        const qsizetype emoji = emojiAtFront(text);
        const QString part = text.first(emoji > 0 ? emoji : lettersAtFront(text)).toString();
        (emoji > 0 ? drawEmoji : drawOutlines)(painter, baseline, part);
        text = text.sliced(part.size());
        if (text.isEmpty()) return;  // the most texts are one part, whose width nobody needs
        const QFont font = emoji > 0 ? emojiFont(painter.font()) : painter.font();
        baseline.rx() += QFontMetricsF(font).horizontalAdvance(part);
    }
}
#endif

}  // namespace

Lettering::Lettering(const theme::TextStyle& style)
    : m_scale(scaleFor(style.sizePx())), m_isTabular(style.isTabular), m_isMonospaced(style.isMonospaced) {
    m_font = theme::font(style, 1.0 / m_scale);
}

double Lettering::advanceOf(QChar letter) const {
    return textShape(letter.isDigit() ? QString('0') : QString(letter), m_font).advance;
}

QString Lettering::set(const QString& text) const { return m_isMonospaced ? text : typeset(text); }

double Lettering::widthOf(const QString& text) const {
    if (!m_isTabular) return textShape(set(text), m_font).advance * m_scale;
    double width = 0.0;
    for (const QChar letter : text) width += advanceOf(letter);
    return width * m_scale;
}

QString Lettering::elided(const QString& text, double width) const {
    if (widthOf(text) <= width) return m_isTabular ? text : set(text);
    return QFontMetricsF(m_font).elidedText(set(text), Qt::ElideRight, width / m_scale);
}

void Lettering::paint(QPainter& painter, const QRectF& rect, const QString& text) const {
    const QFontMetricsF metrics(m_font);
    const double height = (metrics.ascent() + metrics.descent()) * m_scale;
    const double baseline = rect.center().y() - height / 2.0 + metrics.ascent() * m_scale;
    painter.save();
    painter.setFont(m_font);
    painter.translate(onWholePixel(painter, QPointF(rect.left(), baseline)));
    painter.scale(m_scale, m_scale);
    paintLetters(painter, text);
    painter.restore();
}

void Lettering::paintLetters(QPainter& painter, const QString& text) const {
    if (!m_isTabular) return drawLetters(painter, {}, set(text));
    double x = 0.0;
    for (const QChar letter : text) {
        const double spare = advanceOf(letter) - textShape(QString(letter), m_font).advance;
        drawLetters(painter, {x + spare / 2.0, 0.0}, QString(letter));
        x += advanceOf(letter);
    }
}

QList<QTextLayout::FormatRange> Lettering::formats(const QString& text) const { return emojiFormats(text, m_font); }

QPainterPath Lettering::outlines(const QString& text) const {
    return QTransform::fromScale(m_scale, m_scale).map(textShape(set(text), m_font).outlines());
}

QString typeset(const QString& text) {
    QString set = text;
    return set.replace("0x", QString("0") + kZeroWidthNonJoiner + 'x');
}

}  // namespace lumo
