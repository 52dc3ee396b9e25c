// An inset box with a few lines of text.
#pragma once

#include <QWidget>
#include <string_view>

namespace lumo {

class TextBlock;

/// Main thread.
class InfoBox final : public QWidget {
    Q_OBJECT

public:
    explicit InfoBox(QWidget* parent);

    /// For the longest of its texts in its usual, narrow place.
    static int boxHeight();
    /// Where it is as wide as the keyboard.
    static int lowBoxHeight();

    /// Untrusted UTF-8.
    void setText(std::string_view text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    TextBlock* m_text;
};

}  // namespace lumo
