// The fade at the foot of something that goes on below.
#pragma once

#include <QWidget>

class QScrollBar;

namespace lumo {

/// Main thread. Lies over the lower edge of its parent, a viewport, while the followed bar is not at its end.
class ScrollHint final : public QWidget {
    Q_OBJECT

public:
    ScrollHint(QScrollBar& followed, QWidget* viewport);

    /// To be called when the viewport has another size.
    void follow();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QScrollBar& m_followed;
};

}  // namespace lumo
