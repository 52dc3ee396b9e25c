// What helps when the system grants something and the program does not get it.
#pragma once

#include <QWidget>

namespace lumo {

class TextBlock;
class TextLine;

/// Main thread.
class TccNotice final : public QWidget {
    Q_OBJECT

public:
    explicit TccNotice(QWidget* parent);

    [[nodiscard]] int heightWithin(int width) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    TextLine* m_heading;
    TextBlock* m_text;
};

}  // namespace lumo
