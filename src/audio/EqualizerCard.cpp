#include "audio/EqualizerCard.h"

#include <QPainter>

#include "audio/Equalizer.h"
#include "audio/StreamToggle.h"
#include "controls/Panel.h"
#include "controls/Section.h"
#include "controls/TextBlock.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kLines = 2;

struct Measures {
    int headingToLine;
    int lineToToggle;
    int toggleHeight;
    int toggleToWell;
};
constexpr Measures kUsual{6, 14, 36, 14};
constexpr Measures kShort{4, 8, 28, 8};

int linesHeight() { return kLines * theme::kStreamLineStyle.linePx(); }

/// From the section's top.
int wellTop(const Measures& measures) {
    return Section::headingHeight() + measures.headingToLine + linesHeight() + measures.lineToToggle +
           theme::grown(measures.toggleHeight) + measures.toggleToWell;
}

}  // namespace

int EqualizerCard::leastHeight() {
    return theme::kCardPadding + wellTop(kShort) + Equalizer::leastHeight() + theme::kCardPadding;
}

EqualizerCard::EqualizerCard(QWidget* parent)
    : QWidget(parent),
      m_section(new Section("AUDIO REACTIVE EQUALIZER (MODE 17)", this)),
      m_line(new TextBlock(theme::kStreamLineStyle, theme::kTextBody, kLines, m_section)),
      m_toggle(new StreamToggle(m_section)),
      m_equalizer(new Equalizer(m_section)) {
    m_line->setText("Streams 382-byte spectrum frames directly to keyboard hMusic endpoint (FUN_0048ca30).");
    connect(m_toggle, &QAbstractButton::clicked, this, &EqualizerCard::toggled);
}

void EqualizerCard::setStreaming(bool isStreaming) {
    m_toggle->setStreaming(isStreaming);
    m_equalizer->bars().setRunning(isStreaming);
}

void EqualizerCard::setLevels(const BandLevels& levels) { m_equalizer->bars().setLevels(levels); }

void EqualizerCard::setSource(std::string_view name) { m_equalizer->setSource(name); }

PushControl& EqualizerCard::toggle() const { return *m_toggle; }

void EqualizerCard::place(const QRect& card, bool isShort) {
    setGeometry(card);
    constexpr int kPadding = theme::kCardPadding;
    const QRect inner = rect().adjusted(kPadding, kPadding, -kPadding, -kPadding);
    m_section->setGeometry(inner);
    const Measures& measures = isShort ? kShort : kUsual;
    const int lineTop = Section::headingHeight() + measures.headingToLine;
    m_line->setGeometry(0, lineTop, inner.width(), linesHeight());
    m_toggle->setGeometry(0, lineTop + linesHeight() + measures.lineToToggle, inner.width(),
                          theme::grown(measures.toggleHeight));
    const int top = wellTop(measures);
    m_equalizer->setGeometry(0, top, inner.width(), inner.height() - top);
}

void EqualizerCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

}  // namespace lumo
