#include "audio/MusicLevelsCard.h"

#include <QPainter>

#include "controls/Columns.h"
#include "controls/Panel.h"
#include "controls/SliderSection.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr SliderRange kRange{1.0, 5.0, 0.5};
constexpr int kSidePadding = 16;
constexpr int kGap = 28;

SliderSection::ValueText gainText(double factor) { return {QString::number(factor, 'f', 1).toStdString() + "x", ""}; }

SliderSection::ValueText smoothnessText(double smoothness) {
    return {QString::number(smoothness, 'f', 1).toStdString(), ""};
}

}  // namespace

int MusicLevelsCard::cardHeight() { return theme::grown(66); }

MusicLevelsCard::MusicLevelsCard(MainQueue main, QWidget* parent)
    : QWidget(parent),
      m_gain(new SliderSection({"GAIN FACTOR", kRange, gainText}, main, this)),
      m_smoothness(new SliderSection({"SMOOTHNESS", kRange, smoothnessText}, main, this)) {
    connect(m_gain, &SliderSection::valueChanged, this, &MusicLevelsCard::gainChanged);
    connect(m_smoothness, &SliderSection::valueChanged, this, &MusicLevelsCard::smoothnessChanged);
}

void MusicLevelsCard::setGain(double factor) { m_gain->setValue(factor); }

void MusicLevelsCard::setSmoothness(double smoothness) { m_smoothness->setValue(smoothness); }

void MusicLevelsCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

void MusicLevelsCard::resizeEvent(QResizeEvent*) {
    constexpr int kRoom = SliderSection::kRoom;
    const auto halves = divide(width() - 2 * kSidePadding, kGap, std::array{Column{}, Column{}});
    const auto place = [](SliderSection& section, const Extent& half) {
        section.setGeometry(kSidePadding + half.begin - kRoom, theme::kCardPadding, half.length + 2 * kRoom,
                            SliderSection::sectionHeight());
    };
    place(*m_gain, halves[0]);
    place(*m_smoothness, halves[1]);
}

}  // namespace lumo
