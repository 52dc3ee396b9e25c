#include "controls/Section.h"

#include <algorithm>

#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kContentTop = Section::kHeadingHeight + theme::kHeadingToContent;

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

void Section::setContent(QWidget* content) {
    m_content = content;
    m_content->setParent(this);
    setMinimumHeight(kContentTop + content->minimumHeight());
}

QAccessibleInterface* Section::makeAccessible() { return new AccessibleGroup(*this, *m_heading); }

void Section::resizeEvent(QResizeEvent*) {
    const int headingWidth = std::min(width() - 2 * m_margin, m_heading->sizeHint().width());
    m_heading->setGeometry(m_margin, 0, headingWidth, m_heading->sizeHint().height());
    if (m_content) m_content->setGeometry(0, kContentTop, width(), height() - kContentTop);
}

}  // namespace lumo
