#include "controls/Section.h"

#include <algorithm>

#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

int contentTop() { return Section::headingHeight() + theme::kHeadingToContent; }

}  // namespace

Section::Section(std::string_view heading, const theme::TextStyle& style, const QColor& color, QWidget* parent,
                 int margin)
    : QWidget(parent), m_margin(margin), m_heading(new TextLine(style, color, this)) {
    m_heading->setText(heading);
}

Section::Section(std::string_view heading, QWidget* parent, int margin)
    : Section(heading, theme::kSectionStyle, theme::kTextSection, parent, margin) {}

Section::Section(std::string_view heading, const theme::TextStyle& style, QWidget* parent)
    : Section(heading, style, theme::kTextSection, parent, 0) {}

int Section::headingHeight() { return theme::kSectionStyle.linePx(); }

void Section::setContent(QWidget* content) {
    m_content = content;
    m_content->setParent(this);
    setMinimumHeight(contentTop() + content->minimumHeight());
}

QAccessibleInterface* Section::makeAccessible() { return new AccessibleGroup(*this, *m_heading); }

void Section::placeHeading(int room) {
    const QSize whole = m_heading->sizeHint();
    m_heading->setGeometry(m_margin, 0, std::min(room, whole.width()), whole.height());
}

int Section::headingWidth() const { return m_heading->sizeHint().width(); }

void Section::resizeEvent(QResizeEvent*) {
    placeHeading(width() - 2 * m_margin);
    if (m_content) m_content->setGeometry(0, contentTop(), width(), height() - contentTop());
}

}  // namespace lumo
