// The well with the bars of the sixteen bands and their numbers.
#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "audio/EqualizerBars.h"

namespace lumo {

class TextLine;

/// Main thread. Bars and numbers are centred in its height.
class Equalizer final : public QWidget {
    Q_OBJECT

public:
    static int leastHeight();

    explicit Equalizer(QWidget* parent);

    /// What the levels come from: names the bars, and stands above them where there is room.
    void setSource(std::string_view name);
    [[nodiscard]] EqualizerBars& bars() const { return *m_bars; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    TextLine* m_source;
    EqualizerBars* m_bars;
    std::vector<TextLine*> m_numbers;
};

}  // namespace lumo
