#include "audio/Equalizer.h"

#include <QPainter>
#include <string>

#include "controls/Panel.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kPadding = 8;
constexpr int kBarsToNumbers = 6;
constexpr int kSourceTop = 6;
constexpr int kLeastMargin = 2;

int numberHeight() { return theme::kBandStyle.linePx(); }

int contentHeight() { return EqualizerBars::kHighestBar + kBarsToNumbers + numberHeight(); }

}  // namespace

int Equalizer::leastHeight() { return contentHeight() + 2 * kLeastMargin; }

Equalizer::Equalizer(QWidget* parent)
    : QWidget(parent),
      m_source(new TextLine(theme::kBandStyle, theme::kTextMinor, this)),
      m_bars(new EqualizerBars(this)) {
    for (std::size_t band = 0; band < kBandCount; ++band) {
        auto* const number = new TextLine(theme::kBandStyle, theme::kTextMinor, this);
        number->setText(std::to_string(band));
        m_numbers.push_back(number);
    }
}

void Equalizer::setSource(std::string_view name) {
    if (m_source->setText(name)) m_bars->setAccessibleName(m_source->text());
}

void Equalizer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kBoxRadius, theme::kInset, theme::kCardLine);
}

void Equalizer::resizeEvent(QResizeEvent*) {
    const int inner = width() - 2 * kPadding;
    const int barsTop = (height() - contentHeight()) / 2;
    m_source->setGeometry(kPadding, kSourceTop, inner, numberHeight());
    m_source->setVisible(barsTop >= kSourceTop + numberHeight() + kPadding);
    m_bars->setGeometry(kPadding, barsTop, inner, EqualizerBars::kHeight);
    const int numbersTop = barsTop + EqualizerBars::kHighestBar + kBarsToNumbers;
    for (std::size_t band = 0; band < m_numbers.size(); ++band) {
        TextLine& number = *m_numbers[band];
        const int numberWidth = number.sizeHint().width();
        const double centre = kPadding + m_bars->cellX(band) + EqualizerBars::kCellWidth / 2.0;
        number.setGeometry(qRound(centre - numberWidth / 2.0), numbersTop, numberWidth, numberHeight());
    }
}

}  // namespace lumo
