#include "macro/StepRow.h"

#include <algorithm>

#include "app/AssetManager.h"
#include "controls/Panel.h"
#include "controls/Picture.h"
#include "controls/PushButton.h"
#include "controls/Symbol.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr auto kUnit = "ms";
constexpr double kPadding = 10.0;
constexpr int kLeastNumberWidth = 24;
constexpr double kNumberGap = 8.0;
constexpr double kIcon = 18.0;
constexpr double kIconGap = 8.0;
constexpr int kDirectionWidth = 76;
constexpr double kCodePadding = 7.0;
constexpr int kCodeHeight = 19;
constexpr double kCodeGap = 8.0;
constexpr double kClock = 15.0;
constexpr double kClockGap = 6.0;
constexpr double kUnitGap = 3.0;
constexpr double kRemoveGap = 10.0;
constexpr double kRemove = 24.0;
constexpr double kRemovePadding = 4.0;
constexpr double kTrash = 14.0;

constexpr QColor kUpColor{0xB0, 0xB0, 0xB6};
constexpr QColor kUpSymbol{0xA6, 0xA6, 0xAC};
constexpr QColor kDownSymbol{0xB9, 0xA3, 0xFF};
constexpr PressColors kRemoveFill{theme::white(0), theme::kDangerFill, {0xFF, 0x6B, 0x61, 15}};
constexpr PressColors kRemoveSymbol{theme::kTextMinor, theme::kTextDanger, {0xE0, 0x7F, 0x78}};

QRectF centred(double x, double width, double height) {
    return {x, (StepRow::rowHeight() - height) / 2.0, width, height};
}

QImage picture(std::string_view name) { return AssetManager::shared().image(name); }

}  // namespace

QString stepText(StepPart part, std::size_t index, const MacroEvent& step) {
    switch (part) {
        case StepPart::number:
            return QString::number(index + 1);
        case StepPart::direction:
            return step.isDown ? "KEY DOWN" : "KEY UP";
        case StepPart::code:
            return QString("0x%1").arg(QString::number(step.keyCode, 16).toUpper(), 2, '0');
        case StepPart::delay:
            return QString::number(step.delayMs);
        case StepPart::unit:
            return kUnit;
        case StepPart::remove:
            return QString("Delete step %1").arg(index + 1);
    }
    return {};
}

int StepRow::rowHeight() { return theme::grown(34); }

StepRow::StepRow()
    : m_number(theme::kStepNumberStyle),
      m_unit(theme::kUnitStyle),
      m_direction(theme::kButtonStyle),
      m_code(theme::kCodeStyle),
      m_delay(theme::kDelayStyle) {}

void StepRow::layOut(int width, std::size_t count) {
    m_width = width;
    m_numberWidth =
        std::max<double>(theme::widened(kLeastNumberWidth), m_number.widthOf(QString::number(count)) + kNumberGap);
}

double StepRow::iconX() const { return kPadding + m_numberWidth; }

double StepRow::codeX() const { return iconX() + kIcon + kIconGap + theme::widened(kDirectionWidth); }

double StepRow::delayRoom() const {
    const double codeEnd = codeX() + 2.0 * kCodePadding + m_code.widthOf("0xFF");
    const double delayEnd = m_width - kRemovePadding - kRemove - kRemoveGap - m_unit.widthOf(kUnit) - kUnitGap;
    return delayEnd - codeEnd - kCodeGap - kClock - kClockGap;
}

QString StepRow::shownDelay(const MacroEvent& step) const {
    return m_delay.elided(stepText(StepPart::delay, 0, step), delayRoom());
}

bool StepRow::isDelayElided(const MacroEvent& step) const {
    return shownDelay(step) != stepText(StepPart::delay, 0, step);
}

QRectF StepRow::place(StepPart part, const MacroEvent& step) const {
    const double high = rowHeight();
    const double removeX = m_width - kRemovePadding - kRemove;
    const double unitX = removeX - kRemoveGap - m_unit.widthOf(kUnit);
    switch (part) {
        case StepPart::number:
            return {kPadding, 0.0, m_numberWidth, high};
        case StepPart::direction:
            return {iconX() + kIcon + kIconGap, 0.0, static_cast<double>(theme::widened(kDirectionWidth)), high};
        case StepPart::code:
            return centred(codeX(), 2.0 * kCodePadding + m_code.widthOf(stepText(part, 0, step)),
                           theme::grown(kCodeHeight));
        case StepPart::delay: {
            const double width = m_delay.widthOf(shownDelay(step));
            return {unitX - kUnitGap - width, 0.0, width, high};
        }
        case StepPart::unit:
            return {unitX, 0.0, m_unit.widthOf(kUnit), high};
        case StepPart::remove:
            return centred(removeX, kRemove, kRemove);
    }
    return {};
}

void StepRow::paint(QPainter& painter, std::size_t index, const MacroEvent& step, const StepGlow& glow) const {
    paintPanel(painter, QRectF(0.0, 0.0, m_width, rowHeight()), theme::kRowRadius, faded(theme::kStepHover, glow.row),
               Qt::transparent);
    painter.setPen(theme::kTextMinor);
    m_number.paint(painter, place(StepPart::number, step), stepText(StepPart::number, index, step));
    m_unit.paint(painter, place(StepPart::unit, step), kUnit);
    paintDirection(painter, step);

    const QRectF chip = place(StepPart::code, step);
    paintPanel(painter, chip, theme::kChipRadius, theme::kInset, Qt::transparent);
    painter.setPen(theme::kTextButton);
    m_code.paint(painter, chip.adjusted(kCodePadding, 0.0, 0.0, 0.0), stepText(StepPart::code, index, step));

    const QRectF delay = place(StepPart::delay, step);
    paintPicture(painter, centred(delay.left() - kClockGap - kClock, kClock, kClock), picture("other/time.png"));
    painter.setPen(theme::kText);
    m_delay.paint(painter, delay, shownDelay(step));
    paintRemove(painter, place(StepPart::remove, step), glow);
}

void StepRow::paintDirection(QPainter& painter, const MacroEvent& step) const {
    const QRectF icon = centred(iconX(), kIcon, kIcon);
    const QImage artwork = picture(step.isDown ? "other/mac_keydn.png" : "other/mac_keyup.png");
    if (artwork.isNull()) {
        paintSymbol(painter, icon, step.isDown ? "arrow.down.circle.fill" : "arrow.up.circle",
                    step.isDown ? kDownSymbol : kUpSymbol);
    } else {
        paintPicture(painter, icon, artwork);
    }
    painter.setPen(step.isDown ? theme::kAccentPale : kUpColor);
    m_direction.paint(painter, place(StepPart::direction, step), stepText(StepPart::direction, 0, step));
}

void StepRow::paintRemove(QPainter& painter, const QRectF& frame, const StepGlow& glow) const {
    paintPanel(painter, frame, kRemoveRadius, kRemoveFill.at(glow.removeHover, glow.removePress), Qt::transparent);
    QRectF trash(0.0, 0.0, kTrash, kTrash);
    trash.moveCenter(frame.center());
    paintSymbol(painter, trash, "trash", kRemoveSymbol.at(glow.removeHover, glow.removePress));
}

}  // namespace lumo
