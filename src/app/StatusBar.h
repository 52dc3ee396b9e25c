// The foot of the window: what happened last, and which keyboard the program is for.
#pragma once

#include <QWidget>
#include <deque>
#include <string_view>
#include <vector>

#include "controls/Accessible.h"

namespace lumo {

class StatusChip;
class TextLine;

/// Main thread.
class StatusBar final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static int barHeight();

    explicit StatusBar(QWidget* parent);

    /// Plain text. A screen reader is told when it differs from the last one.
    void setMessage(std::string_view message);
    /// Whether the microphone, and whether the keys may be heard.
    void setGrants(bool microphone, bool keys);

    QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int missingWidth() const;
    void addFixedText(std::string_view text);

    TextLine* m_message;
    StatusChip* m_audio;
    StatusChip* m_keys;
    std::deque<TextLine*> m_fixedTexts;  // from right to left
    std::vector<int> m_separators;       // where they stand
};

}  // namespace lumo
