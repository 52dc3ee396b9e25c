// A section of a page: a rounded surface, a heading and one content.
#pragma once

#include <QWidget>

#include "controls/Accessible.h"

namespace lumo {

class TextLine;

/// Main thread. Owns the content, which takes all the room below the heading; where that is less than the content's
/// minimum height, the content reaches into the lower padding.
class Card final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    Card(std::string_view heading, QWidget* content, QWidget* parent);

    QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    TextLine* m_heading;
    QWidget* m_content;
};

}  // namespace lumo
