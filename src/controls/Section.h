// A heading and what belongs to it.
#pragma once

#include <QWidget>

#include "controls/Accessible.h"
#include "controls/Theme.h"

namespace lumo {

class TextLine;

/// Main thread. The heading stands at the top and labels the group. A content takes all the room below. With a margin,
/// the section is so much wider on both sides than its heading, for what needs room around it.
class Section : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static int headingHeight();

    Section(std::string_view heading, QWidget* parent, int margin = 0);
    /// Without a margin, in a style of its own.
    Section(std::string_view heading, const theme::TextStyle& style, QWidget* parent);
    Section(std::string_view heading, const theme::TextStyle& style, const QColor& color, QWidget* parent, int margin);

    /// Owns the content from now on. Its minimum height decides the section's.
    void setContent(QWidget* content);

    QAccessibleInterface* makeAccessible() final;

protected:
    void resizeEvent(QResizeEvent* event) override;
    /// Within that width from the margin.
    void placeHeading(int room);
    [[nodiscard]] int headingWidth() const;

private:
    int m_margin;
    TextLine* m_heading;
    QWidget* m_content = nullptr;
};

}  // namespace lumo
