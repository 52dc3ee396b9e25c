#include "controls/TextShape.h"

#include <QCache>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>
#include <unordered_map>
#include <utility>

namespace lumo {
namespace {

constexpr int kTexts = 400;  // a page has about half as many

struct HashOfPair {
    std::size_t operator()(const std::pair<QRawFont, quint32>& glyph) const {
        return qHashMulti(0, glyph.first, glyph.second);
    }
};

/// Reading an outline from the font costs more than all that is done with it, and texts are made of the same letters.
const QPainterPath& outlineOf(const QRawFont& font, quint32 glyph) {
    thread_local std::unordered_map<std::pair<QRawFont, quint32>, QPainterPath, HashOfPair> known;
    const auto [place, isNew] = known.try_emplace({font, glyph});
    if (isNew) {
        place->second = font.pathForGlyph(glyph);
        place->second.setFillRule(Qt::WindingFill);
    }
    return place->second;
}

/// A text in pieces that are set one by one: a non-joiner parts them by itself, but where a font has none, another font
/// would be loaded for a sign that shows nothing.
struct Pieces {
    explicit Pieces(QString all) : text(std::move(all)) {
        for (auto at = text.indexOf(kZeroWidthNonJoiner); at >= 0; at = text.indexOf(kZeroWidthNonJoiner, at)) {
            text.remove(at, 1);
            if (at < text.size()) borders.push_back({static_cast<int>(at), 1, {}});
        }
    }

    QString text;
    QList<QTextLayout::FormatRange> borders;
};

TextShape workOut(const QString& text, const QFont& font) {
    TextShape shape;
    const Pieces pieces(text);
    QTextLayout layout(pieces.text, font);
    layout.setFormats(pieces.borders);
    QTextOption option;
    option.setUseDesignMetrics(true);  // letters keep their distances at every size
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid()) return shape;
    shape.advance = line.horizontalAdvance();
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            shape.letters.push_back({&outlineOf(run.rawFont(), glyphs[i]), places[i] - QPointF(0.0, line.ascent())});
        }
    }
    return shape;
}

}  // namespace

QPainterPath TextShape::outlines() const {
    if (letters.empty()) return {};
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const Letter& letter : letters) path.addPath(letter.outline->translated(letter.foot));
    return path;
}

const TextShape& textShape(const QString& text, const QFont& font) {
    thread_local QCache<std::pair<QString, QFont>, TextShape> known(kTexts);
    const std::pair key(text, font);
    if (const TextShape* const shape = known.object(key)) return *shape;
    auto* const shape = new TextShape(workOut(text, font));
    known.insert(key, shape);
    return *shape;
}

}  // namespace lumo
