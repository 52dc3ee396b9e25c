#include "keyboard/PaletteCard.h"

#include <QPainter>

#include "controls/Columns.h"
#include "controls/FocusGroup.h"
#include "controls/Panel.h"
#include "controls/PlainText.h"
#include "controls/PushButton.h"
#include "controls/Section.h"
#include "controls/ShownColor.h"
#include "controls/TextBlock.h"
#include "controls/Theme.h"
#include "keyboard/ColorSwatch.h"
#include "keyboard/PresetColors.h"

namespace lumo {
namespace {

constexpr int kPadding = theme::kCardPadding;
constexpr int kAcross = 4;
constexpr int kGap = 8;
constexpr int kHeadingToSwatches = 10;
constexpr int kSwatchHeight = 48;
constexpr int kShortSwatchHeight = 30;
constexpr int kTipLines = 3;
constexpr int kTipGap = 14;  // above and below
constexpr int kShortTipGap = 10;
constexpr int kLineWidth = 1;
constexpr std::array<Column, 2> kToolColumns{Column{1.0}, Column{1.72}};

int swatchTop() { return theme::kSectionStyle.linePx() + kHeadingToSwatches; }

int primaryHeight() { return theme::grown(32); }

int buttonHeight() { return theme::grown(28); }

int tipHeight() { return kTipLines * theme::kDescriptionStyle.linePx(); }

}  // namespace

PaletteCard::PaletteCard(QWidget* parent)
    : QWidget(parent),
      m_palette(new Section("COLOR PALETTE", this, kPadding)),
      m_group(new FocusGroup({.across = 1, .down = kAcross}, m_palette)),
      m_swatches(makeSwatches()),
      m_tip(new TextBlock(theme::kDescriptionStyle, theme::kTextBody, kTipLines, this)),
      m_paint(new PushButton({}, look::kPrimary, this)),
      m_fill(new PushButton("Fill All", look::kPlain, this)),
      m_rainbow(new PushButton("Rainbow Preset", look::kPlain, this)) {
    m_tip->setText(
        "Tip: In Per-Key RGB mode, clicking any switch on the keyboard immediately paints it with the selected color.");
    m_paint->setSymbol("paintbrush.fill");
    m_rainbow->setSymbol("rainbow");
    connect(m_paint, &QAbstractButton::clicked, this, &PaletteCard::paintSelected);
    connect(m_fill, &QAbstractButton::clicked, this, &PaletteCard::fillAll);
    connect(m_rainbow, &QAbstractButton::clicked, this, &PaletteCard::applyRainbow);
}

int PaletteCard::leastHeight() {
    const int swatches = swatchTop() + 2 * kShortSwatchHeight + kGap;
    const int tools = kLineWidth + kShortTipGap + tipHeight() + kShortTipGap + primaryHeight() + kGap + buttonHeight();
    return kPadding + swatches + kGap + tools + kPadding;
}

std::vector<ColorSwatch*> PaletteCard::makeSwatches() {
    std::vector<ColorSwatch*> swatches;
    for (std::size_t i = 0; i < kPresetColors.size(); ++i) {
        auto* const swatch = new ColorSwatch(plainText(kPresetColorNames[i]), shownColor(kPresetColors[i]), m_palette);
        connect(swatch, &QAbstractButton::clicked, this,
                [this, i] { emit presetPicked(static_cast<std::int64_t>(i)); });
        m_group->add(*swatch);
        swatches.push_back(swatch);
    }
    return swatches;
}

void PaletteCard::setChosenColor(const Color& color) {
    const ColorBytes chosen = toBytes(color);
    for (std::size_t i = 0; i < m_swatches.size(); ++i) {
        m_swatches[i]->setSelected(toBytes(kPresetColors[i]) == chosen);
    }
    m_group->placeTabStop();
}

void PaletteCard::setSelectedKeys(std::size_t count) { m_paint->setLabel(QString("Paint Selected (%1)").arg(count)); }

void PaletteCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
    painter.fillRect(1, m_lineY, width() - 2, 1, theme::kToolsLine);
}

void PaletteCard::resizeEvent(QResizeEvent*) {
    placeSwatches();
    placeTools();
}

void PaletteCard::placeSwatches() {
    const int swatchHeight = theme::isShort(height()) ? kShortSwatchHeight : kSwatchHeight;
    const std::vector<Column> columns(kAcross);
    const auto extents = divide(width() - 2 * kPadding, kGap, columns);
    for (std::size_t i = 0; i < m_swatches.size(); ++i) {
        const auto& [x, swatchWidth] = extents[i % kAcross];
        const int y = swatchTop() + static_cast<int>(i / kAcross) * (swatchHeight + kGap);
        m_swatches[i]->setColorRect({kPadding + x, y, swatchWidth, swatchHeight});
    }
    m_palette->setGeometry(0, kPadding, width(), m_swatches.back()->geometry().bottom() + 1);
}

void PaletteCard::placeTools() {
    const int inner = width() - 2 * kPadding;
    const int tipGap = theme::isShort(height()) ? kShortTipGap : kTipGap;
    const auto columns = divide(inner, kGap, kToolColumns);
    int y = height() - kPadding - buttonHeight();
    m_fill->setGeometry(kPadding + columns[0].begin, y, columns[0].length, buttonHeight());
    m_rainbow->setGeometry(kPadding + columns[1].begin, y, columns[1].length, buttonHeight());
    y -= kGap + primaryHeight();
    m_paint->setGeometry(kPadding, y, inner, primaryHeight());
    y -= tipGap + tipHeight();
    m_tip->setGeometry(kPadding, y, inner, tipHeight());
    m_lineY = y - tipGap - 1;
}

}  // namespace lumo
