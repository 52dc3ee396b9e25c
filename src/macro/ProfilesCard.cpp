#include "macro/ProfilesCard.h"

#include "controls/IconButton.h"
#include "controls/PushButton.h"
#include "controls/Theme.h"
#include "macro/ProfileList.h"

namespace lumo {
namespace {

constexpr int kPadding = theme::kCardPadding;
constexpr int kGap = 8;
constexpr double kPlusSize = 16.0;

int headingHeight() { return theme::kSectionStyle.linePx(); }

int listTop() { return kPadding + headingHeight() + theme::kHeadingToContent; }

}  // namespace

ProfilesCard::ProfilesCard(const QStringList& names, QWidget* parent)
    : HeadedCard(makeHeading("MACRO PROFILES"), parent),
      m_list(new ProfileList(names, this)),
      m_add(new IconButton("Add macro", "plus", kPlusSize, this, look::kPlain.skin)),
      m_delete(new PushButton("Delete", look::kPlain, this)) {
    connect(m_list, &ProfileList::chosen, this, &ProfilesCard::chosen);
    connect(m_add, &QAbstractButton::clicked, this, &ProfilesCard::added);
    connect(m_delete, &QAbstractButton::clicked, this, &ProfilesCard::deleted);
}

void ProfilesCard::setMacros(const QStringList& names, std::int64_t selected) {
    m_list->setNames(names);
    m_list->setSelected(selected);
}

void ProfilesCard::resizeEvent(QResizeEvent*) {
    const int inner = width() - 2 * kPadding;
    const int footHeight = theme::grown(IconButton::kSize);
    const int footTop = height() - kPadding - footHeight;
    heading().setGeometry(kPadding, kPadding, inner, headingHeight());
    m_list->place({kPadding, listTop(), inner, footTop - kGap - listTop()}, width());
    m_add->setGeometry(kPadding, footTop, footHeight, footHeight);
    const int deleteX = kPadding + footHeight + kGap;
    m_delete->setGeometry(deleteX, footTop, width() - kPadding - deleteX, footHeight);
}

}  // namespace lumo
