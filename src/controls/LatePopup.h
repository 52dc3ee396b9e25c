// A popup that is made when it first comes up: most launches show none.
#pragma once

#include <QRect>
#include <functional>
#include <utility>

#include "controls/Popup.h"

namespace lumo {

/// Main thread. The popup belongs to the widget that it lies over.
class LatePopup final {
public:
    explicit LatePopup(std::function<Popup*()> make) : m_make(std::move(make)) {}

    void setShown(bool isShown) {
        if (!m_popup && !isShown) return;
        if (!m_popup) {
            m_popup = m_make();
            m_popup->setGeometry(m_place);
        }
        m_popup->setShown(isShown);
    }
    [[nodiscard]] bool isShown() const { return m_popup && m_popup->isShown(); }

    void setGeometry(const QRect& place) {
        m_place = place;
        if (m_popup) m_popup->setGeometry(place);
    }

private:
    std::function<Popup*()> m_make;
    Popup* m_popup = nullptr;
    QRect m_place;
};

}  // namespace lumo
