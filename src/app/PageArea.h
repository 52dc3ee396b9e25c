// The part of the window that shows one page.
#pragma once

#include "controls/ScrollBox.h"

namespace lumo {

class PageVeil;
class ScrollHint;

/// Main thread. A page fills the area, and fades in when it takes the place of another. Where the area is lower than
/// the page's smallest height, the page scrolls as a whole.
class PageArea final : public ScrollBox {
    Q_OBJECT

public:
    explicit PageArea(QWidget* parent);

    /// Owns the page; the one before it goes.
    void setPage(QWidget* page);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    PageVeil* m_veil;
    ScrollHint* m_hint;
};

}  // namespace lumo
