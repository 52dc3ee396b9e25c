#include "macro/LoopModesCard.h"

#include "controls/FocusGroup.h"
#include "controls/Theme.h"
#include "macro/LoopRadio.h"

namespace lumo {
namespace {

constexpr int kPadding = theme::kCardPadding;

struct Measures {
    int headingToRadio;
    int radioHeight;
    int foot;
};
constexpr Measures kUsual{6, 26, 10};
constexpr Measures kShort{3, 24, 8};
constexpr int kRadios = 3;

int firstRadio(const Measures& measures) { return kPadding + theme::kSectionStyle.linePx() + measures.headingToRadio; }

int cardHeight(const Measures& measures) {
    return firstRadio(measures) + kRadios * theme::grown(measures.radioHeight) + measures.foot;
}

QString timesTitle(std::int64_t count) { return QString("Cycle times (%1)").arg(count); }

}  // namespace

LoopModesCard::LoopModesCard(QWidget* parent)
    : HeadedCard(makeHeading("LOOP MODES"), parent), m_group(new FocusGroup({.across = 0, .down = 1}, this)) {
    for (const QString& title : {timesTitle(0), QString("Until key released"), QString("Until key pressed")}) {
        const auto mode = static_cast<std::int64_t>(m_radios.size());
        auto* const radio = new LoopRadio(
            title, [this, mode] { emit chosen(mode); }, this);
        m_group->add(*radio);
        m_radios.push_back(radio);
    }
}

void LoopModesCard::setLoopCount(std::int64_t count) {
    m_radios.front()->setTitle(timesTitle(count));
    placeRadios();
}

void LoopModesCard::setMode(std::int64_t mode) {
    for (std::size_t i = 0; i < m_radios.size(); ++i) m_radios[i]->setSelected(static_cast<std::int64_t>(i) == mode);
    m_group->placeTabStop();
}

int LoopModesCard::heightOn(bool isShortPage) { return cardHeight(isShortPage ? kShort : kUsual); }

void LoopModesCard::placeRadios() {
    const Measures& measures = height() < cardHeight(kUsual) ? kShort : kUsual;
    const int radioHeight = theme::grown(measures.radioHeight);
    int y = firstRadio(measures);
    for (LoopRadio* const radio : m_radios) {
        radio->setGeometry(kPadding, y, radio->sizeHint().width(), radioHeight);
        y += radioHeight;
    }
}

void LoopModesCard::resizeEvent(QResizeEvent*) {
    heading().setGeometry(kPadding, kPadding, width() - 2 * kPadding, theme::kSectionStyle.linePx());
    placeRadios();
}

}  // namespace lumo
