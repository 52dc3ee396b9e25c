// A place for something that may be higher than it.
#pragma once

#include <QScrollArea>

namespace lumo {

class ScrollBar;

/// Main thread. Its content is as wide as the place, and as high unless it needs more: then it scrolls, also to the
/// control that the keyboard comes to.
class ScrollBox : public QScrollArea {
    Q_OBJECT

public:
    struct Measures {
        int barToEdge = 0;   // from our scroll bar to the right edge
        int ringMargin = 0;  // what stays in view above and below the control that the keyboard came to
    };

    ScrollBox(const Measures& measures, QWidget* parent);

    /// In the parent's coordinates: the content's place, and as much on its right as holds the scroll bar.
    void place(const QRect& content, int rightEdge);

    /// Scrolls all that the widget lies in, from the inside to the outside, until that part of it can be seen.
    static void bringIntoView(const QWidget& widget, const QRect& part);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showFocused(QWidget* focused);
    void scrollTo(const QRect& inContent);

    Measures m_measures;
    ScrollBar* m_bar;
};

}  // namespace lumo
