// The card of a popup about permissions: symbol, heading, text, a box, and two buttons side by side.
#pragma once

#include <QWidget>
#include <functional>
#include <string_view>

namespace lumo {

class PushButton;
class TextBlock;
class TextLine;

/// Main thread. As high as its texts need, from the beginning.
class PromptCard final : public QWidget {
    Q_OBJECT

public:
    static int contentWidth();

    struct Symbol {
        int height = 0;  // and width
        std::function<void(QPainter& painter, const QRectF& frame)> paint;
    };
    struct Texts {
        std::string_view heading;
        std::string_view text;
        const char* firstButton = "";
        const char* secondButton = "";
    };

    /// Owns the box, which has its size already.
    PromptCard(const Symbol& symbol, const Texts& texts, QWidget* box);

    /// All of it but its rounded ends and its line.
    [[nodiscard]] QWidget& ground() const { return *m_ground; }
    [[nodiscard]] PushButton& first() const { return *m_first; }
    [[nodiscard]] PushButton& second() const { return *m_second; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Returns the height that it takes.
    int layOut(int symbolHeight);

    QWidget* m_ground;
    TextBlock* m_heading;
    TextBlock* m_text;
    QWidget* m_box;
    PushButton* m_first;
    PushButton* m_second;
};

}  // namespace lumo
