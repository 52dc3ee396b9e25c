// The bars of the equalizer over their lines.
#pragma once

#include <QWidget>

#include "audio/RhythmGenerator.h"
#include "controls/Accessible.h"

namespace lumo {

/// Main thread. The one part of the page that every tick paints anew, and therefore opaque. Named by whoever owns it.
class EqualizerBars final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static constexpr int kCellWidth = 18;
    static constexpr int kHighestBar = 80;
    static constexpr int kHeight = kHighestBar + 1;  // and the line on which they stand

    explicit EqualizerBars(QWidget* parent);

    void setLevels(const BandLevels& levels);
    /// Resting bars are grey.
    void setRunning(bool isRunning);

    /// The left edge of a band's cell.
    [[nodiscard]] double cellX(std::size_t band) const;
    [[nodiscard]] QRectF barRect(std::size_t band) const;

    QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BandLevels m_levels{};
    bool m_isRunning = false;
};

}  // namespace lumo
