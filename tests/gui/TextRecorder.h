// A picture that notes each text painted into it, and what it stands on.
#pragma once

#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QWidget>
#include <memory>
#include <vector>

namespace lumo::test {

struct PaintedText {
    QRect place;            // in the widget that was painted
    double contrast = 1.0;  // the letters' with that pixel below them on which they are read worst: 1 to 21
    QColor letters;         // as they are there, opaque
    QColor surface;         // that pixel
    bool isCut = false;     // some of it lies where nothing is painted
};

/// As contrast is reckoned, of two opaque colours.
[[nodiscard]] double contrastOf(const QColor& one, const QColor& other);

/// Main thread. Letters are told from other shapes by how they are filled. What Qt composes elsewhere first (a widget
/// below a graphics effect) arrives as a picture, without its texts.
class TextRecorder final : public QPaintDevice {
public:
    /// Paints the widget with all that is in it.
    explicit TextRecorder(QWidget& widget);
    TextRecorder(const TextRecorder&) = delete;
    TextRecorder& operator=(const TextRecorder&) = delete;
    ~TextRecorder() override;

    [[nodiscard]] const std::vector<PaintedText>& texts() const;
    [[nodiscard]] QPaintEngine* paintEngine() const override;

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    QImage m_image;
    std::unique_ptr<Engine> m_engine;
};

}  // namespace lumo::test
