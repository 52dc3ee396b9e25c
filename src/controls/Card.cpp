#include "controls/Card.h"

#include <QPainter>
#include <algorithm>

#include "controls/Panel.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

/// A group that its heading labels.
class AccessibleCard final : public QAccessibleWidget {
public:
    AccessibleCard(Card& card, TextLine& heading)
        : QAccessibleWidget(&card, QAccessible::Grouping), m_heading(heading) {}

    [[nodiscard]] QVector<std::pair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override {
        auto found = QAccessibleWidget::relations(match);
        if (match & QAccessible::Label) {
            found.append({QAccessible::queryAccessibleInterface(&m_heading), QAccessible::Label});
        }
        return found;
    }

private:
    TextLine& m_heading;
};

}  // namespace

Card::Card(std::string_view heading, QWidget* content, QWidget* parent)
    : QWidget(parent), m_heading(new TextLine(theme::kSectionStyle, theme::kTextSection, this)), m_content(content) {
    m_heading->setText(heading);
    m_content->setParent(this);
}

QAccessibleInterface* Card::makeAccessible() { return new AccessibleCard(*this, *m_heading); }

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kCardRadius, theme::kCard, theme::kCardLine);
}

void Card::resizeEvent(QResizeEvent*) {
    const int inner = width() - 2 * theme::kCardPadding;
    m_heading->setGeometry(theme::kCardPadding, theme::kCardPadding, inner, theme::kSectionStyle.linePx);
    const int top = m_heading->geometry().bottom() + 1 + theme::kHeadingToContent;
    const int room = height() - theme::kCardPadding - top;
    m_content->setGeometry(theme::kCardPadding, top, inner, std::max(room, m_content->minimumHeight()));
}

}  // namespace lumo
