// A part of a page that places what is in it by itself, below a heading of any kind.
#pragma once

#include <QWidget>
#include <string_view>

#include "controls/Accessible.h"

namespace lumo {

/// Main thread. Paints the surface; the heading labels the group.
class HeadedCard : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    /// Owns the heading, which stands where the deriving class puts it.
    HeadedCard(QWidget* heading, QWidget* parent);

    QAccessibleInterface* makeAccessible() final;

protected:
    [[nodiscard]] QWidget& heading() { return *m_heading; }
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* m_heading;
};

/// A heading in the usual style.
[[nodiscard]] QWidget* makeHeading(std::string_view text);

}  // namespace lumo
