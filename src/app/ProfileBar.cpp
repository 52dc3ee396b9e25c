#include "app/ProfileBar.h"

#include <QPainter>

#include "controls/FocusGroup.h"
#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr std::int64_t kProfiles = 3;
constexpr int kInset = 2;
constexpr int kGap = 2;
constexpr int kTextPadding = 11;
constexpr double kRadius = 9.0;

}  // namespace

int ProfileBar::barHeight() { return theme::grown(28); }

ProfileBar::ProfileBar(QWidget* parent) : QWidget(parent), m_group(new FocusGroup({}, this)) {
    int x = kInset;
    for (std::int64_t number = 1; number <= kProfiles; ++number) {
        auto* const button =
            new PushButton(QString("Profile %1").arg(number), look::kProfile, this, QAccessible::RadioButton);
        button->setGeometry(x, kInset, button->widthWith(kTextPadding), barHeight() - 2 * kInset);
        x += button->width() + kGap;
        connect(button, &QAbstractButton::clicked, this, [this, number] { emit chosen(number); });
        m_group->add(*button);
        m_buttons.push_back(button);
    }
    m_width = x - kGap + kInset;
}

void ProfileBar::setSelected(std::int64_t number) {
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i]->setSelected(static_cast<std::int64_t>(i) + 1 == number);
    }
    m_group->placeTabStop();
}

QAccessibleInterface* ProfileBar::makeAccessible() { return new QAccessibleWidget(this, QAccessible::Grouping); }

void ProfileBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), kRadius, theme::kInset, theme::kCardLine);
}

}  // namespace lumo
