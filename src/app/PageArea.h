// The part of the window that shows one page.
#pragma once

#include <QScrollArea>

namespace lumo {

class PageVeil;
class ScrollBar;
class ScrollHint;

/// Main thread. A page fills the area, and fades in when it takes the place of another. Where the area is lower than
/// the page's smallest height, the page scrolls as a whole, also to the control that the keyboard comes to.
class PageArea final : public QScrollArea {
    Q_OBJECT

public:
    explicit PageArea(QWidget* parent);

    /// Owns the page; the one before it goes. Null leaves the area empty.
    void setPage(QWidget* page);
    /// In the parent's coordinates: the page's place, and as much on its right as holds the scroll bar.
    void place(const QRect& page, int rightEdge);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showFocused(QWidget* focused);

    PageVeil* m_veil;
    ScrollHint* m_hint;
    ScrollBar* m_bar;
};

}  // namespace lumo
