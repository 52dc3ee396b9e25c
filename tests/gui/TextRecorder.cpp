#include "gui/TextRecorder.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>

#include "keyboard/KeyShade.h"

namespace lumo::test {
namespace {

double luminanceOf(const QColor& color) {
    return relativeLuminance({static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
                              static_cast<std::uint8_t>(color.blue())});
}

/// Letters are filled wherever something winds around, all other shapes of ours are not.
bool isLetters(const QPainterPath& path) { return path.fillRule() == Qt::WindingFill; }

QColor over(const QColor& ground, const QColor& paint, double opacity) {
    const double share = paint.alphaF() * opacity;
    const auto blended = [share](int below, int above) { return qRound(below + (above - below) * share); };
    return {blended(ground.red(), paint.red()), blended(ground.green(), paint.green()),
            blended(ground.blue(), paint.blue())};
}

}  // namespace

double contrastOf(const QColor& one, const QColor& other) {
    const auto [darker, brighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
    return (brighter + 0.05) / (darker + 0.05);
}

/// Hands everything on to a painter of the picture. Letters come one by one, and what they stand on is what was there
/// before the first one of their text: they wait for the last one.
class TextRecorder::Engine final : public QPaintEngine {
public:
    explicit Engine(QImage& image) : QPaintEngine(AllFeatures), m_image(image) {}

    bool begin(QPaintDevice*) override { return m_painter.begin(&m_image); }
    bool end() override {
        finishText();
        return m_painter.end();
    }
    [[nodiscard]] Type type() const override { return User; }

    void updateState(const QPaintEngineState& now) override {
        const DirtyFlags changed = now.state();
        if (changed & ~(DirtyFlags(DirtyPen) | DirtyBrush | DirtyBrushOrigin)) finishText();
        if (changed & DirtyTransform) m_painter.setTransform(now.transform());
        if (changed & DirtyPen) m_painter.setPen(now.pen());
        if (changed & DirtyBrush) m_painter.setBrush(now.brush());
        if (changed & DirtyBrushOrigin) m_painter.setBrushOrigin(now.brushOrigin());
        if (changed & DirtyFont) m_painter.setFont(now.font());
        if (changed & DirtyOpacity) m_painter.setOpacity(now.opacity());
        if (changed & DirtyHints) m_painter.setRenderHints(now.renderHints());
        if (changed & DirtyCompositionMode) m_painter.setCompositionMode(now.compositionMode());
        if (changed & DirtyClipRegion) m_painter.setClipRegion(now.clipRegion(), now.clipOperation());
        if (changed & DirtyClipPath) m_painter.setClipPath(now.clipPath(), now.clipOperation());
        if (changed & DirtyClipEnabled) m_painter.setClipping(now.isClipEnabled());
    }

    void drawPath(const QPainterPath& path) override {
        const bool isLetter = isLetters(path) && m_painter.brush().style() == Qt::SolidPattern;
        if (!isLetter || m_painter.brush() != m_letterBrush) finishText();
        if (!isLetter) return m_painter.drawPath(path);
        m_letterBrush = m_painter.brush();
        m_letters.addPath(path);
    }
    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        finishText();
        const QRectF letters(place.x(), place.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        note(letters, m_painter.pen().color());
        m_painter.setFont(item.font());
        m_painter.drawText(place, item.text());
    }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        finishText();
        if (mode == PolylineMode) return m_painter.drawPolyline(points, count);
        m_painter.drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }
    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override {
        finishText();
        m_painter.drawPixmap(target, pixmap, source);
    }
    void drawImage(const QRectF& target, const QImage& image, const QRectF& source, Qt::ImageConversionFlags) override {
        finishText();
        m_painter.drawImage(target, image, source);
    }

    std::vector<PaintedText> texts;

private:
    void finishText() {
        if (m_letters.isEmpty()) return;
        m_letters.setFillRule(Qt::WindingFill);
        note(m_letters.boundingRect(), m_letterBrush.color());
        m_painter.fillPath(std::exchange(m_letters, {}), m_letterBrush);
    }

    void note(const QRectF& letters, const QColor& color) {
        constexpr double kFaint = 0.5;  // of a pixel
        const QTransform& toPixels = m_painter.deviceTransform();
        QRectF open = m_image.rect();
        if (m_painter.hasClipping()) open &= toPixels.mapRect(m_painter.clipBoundingRect());
        const QRectF whole = toPixels.mapRect(letters);
        const QRect place = (whole & open).toAlignedRect() & m_image.rect();
        PaintedText text{place, 21.0, {}, {}, !open.adjusted(-kFaint, -kFaint, kFaint, kFaint).contains(whole)};
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) compare(text, m_image.pixelColor(x, y), color);
        }
        if (!place.isEmpty()) texts.push_back(text);
    }

    void compare(PaintedText& text, const QColor& surface, const QColor& color) const {
        const QColor letters = over(surface, color, m_painter.opacity());
        const double contrast = contrastOf(letters, surface);
        if (contrast < text.contrast) text = {text.place, contrast, letters, surface, text.isCut};
    }

    QImage& m_image;
    QPainter m_painter;
    QPainterPath m_letters;  // of the text that is being painted
    QBrush m_letterBrush;    // theirs
};

TextRecorder::TextRecorder(QWidget& widget)
    : m_image(widget.size(), QImage::Format_ARGB32_Premultiplied), m_engine(std::make_unique<Engine>(m_image)) {
    m_image.fill(Qt::black);
    widget.render(this);
}

TextRecorder::~TextRecorder() = default;

const std::vector<PaintedText>& TextRecorder::texts() const { return m_engine->texts; }

QPaintEngine* TextRecorder::paintEngine() const { return m_engine.get(); }

int TextRecorder::metric(PaintDeviceMetric metric) const {
    switch (metric) {
        case PdmWidth:
            return m_image.width();
        case PdmHeight:
            return m_image.height();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        default:
            return QPaintDevice::metric(metric);
    }
}

}  // namespace lumo::test
