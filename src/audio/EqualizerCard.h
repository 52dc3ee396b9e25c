// The card with the stream's toggle and its equalizer.
#pragma once

#include <QWidget>
#include <string_view>

#include "audio/RhythmGenerator.h"

namespace lumo {

class Equalizer;
class PushControl;
class Section;
class StreamToggle;
class TextBlock;

/// Main thread.
class EqualizerCard final : public QWidget {
    Q_OBJECT

public:
    explicit EqualizerCard(QWidget* parent);

    void setStreaming(bool isStreaming);
    void setLevels(const BandLevels& levels);
    void setSource(std::string_view name);
    [[nodiscard]] PushControl& toggle() const;
    /// On a short page.
    [[nodiscard]] static int leastHeight();
    /// In the parent's coordinates; a short page has smaller gaps and a lower toggle.
    void place(const QRect& card, bool isShort);

signals:
    void toggled();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Section* m_section;
    TextBlock* m_line;
    StreamToggle* m_toggle;
    Equalizer* m_equalizer;
};

}  // namespace lumo
