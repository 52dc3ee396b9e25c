#include "controls/PushButton.h"

#include <QFontMetricsF>
#include <cmath>

#include "controls/Panel.h"
#include "controls/Symbol.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {

namespace look {
namespace {

constexpr QColor kNone{0, 0, 0, 0};
constexpr ButtonSkin kAccentSkin{{theme::kAccent, theme::kAccentHover, theme::kAccentPressed},
                                 {theme::white(100), theme::white(100), {0xE3, 0xDA, 0xFB}},
                                 kNone};
constexpr ButtonSkin withLine(ButtonSkin skin, QColor line) {
    skin.line = line;
    return skin;
}

}  // namespace

constinit const ButtonLook kPlain{{{theme::kControl, theme::kControlHover, theme::kControlPressed},
                                   {theme::kTextButton, theme::white(100), theme::kTextRowPressed},
                                   theme::kControlLine},
                                  {}};
constinit const ButtonLook kPrimary{withLine(kAccentSkin, theme::kPrimaryLine), {}};
constinit const ButtonLook kLayer{{{theme::white(7), theme::white(12), theme::whitePerMille(45)},
                                   {theme::kTextRow, theme::white(100), theme::kTextRowPressed},
                                   kNone},
                                  kAccentSkin};
constinit const ButtonLook kProfile{{{QColor(0x24, 0x24, 0x27), QColor(0x30, 0x30, 0x34), QColor(0x1E, 0x1E, 0x21)},
                                     {theme::kTextProfile, QColor(0xD0, 0xD0, 0xD4), theme::kTextProfile},
                                     kNone},
                                    kAccentSkin};

}  // namespace look

namespace {

constexpr double kSymbolSize = 16.0;
constexpr double kSymbolGap = 6.0;
constexpr double kLeastPadding = 6.0;

double widthOf(const QFont& font, const QString& text) { return QFontMetricsF(font).horizontalAdvance(text); }

}  // namespace

PushButton::PushButton(const QString& text, const ButtonLook& look, QWidget* parent, QAccessible::Role role)
    : PushControl(text, role, parent), m_look(look) {
    setFont(theme::font(theme::kButtonStyle));
}

void PushButton::setSymbol(const QString& name) {
    m_symbol = name;
    update();
}

void PushButton::setLabel(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    setAccessibleName(text);
}

int PushButton::widthWith(int padding) const {
    return static_cast<int>(std::lround(symbolRoom() + widthOf(font(), text()))) + 2 * padding;
}

RingShape PushButton::ringShape() const { return ringAround(rect(), theme::kButtonRadius); }

QString PushButton::toolTipText() const { return shownText() == text() ? QString() : text(); }

double PushButton::symbolRoom() const { return m_symbol.isEmpty() ? 0.0 : kSymbolSize + kSymbolGap; }

QString PushButton::shownText() const {
    return QFontMetricsF(font()).elidedText(text(), Qt::ElideRight, width() - symbolRoom() - 2.0 * kLeastPadding);
}

QColor PushButton::blended(const PressColors& plain, const PressColors& selected) const {
    return mix(plain.at(hover(), press()), selected.at(hover(), press()), selection());
}

void PushButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto& [plain, selected] = m_look;
    paintPanel(painter, rect(), theme::kButtonRadius, blended(plain.fill, selected.fill),
               mix(plain.line, selected.line, selection()));
    painter.setPen(blended(plain.text, selected.text));
    paintLabel(painter);
}

void PushButton::paintLabel(QPainter& painter) const {
    const QString shown = shownText();
    const double left = (width() - symbolRoom() - widthOf(font(), shown)) / 2.0;
    const QRectF all = rect();
    if (!m_symbol.isEmpty()) {
        const QRectF frame(left, all.center().y() - kSymbolSize / 2.0, kSymbolSize, kSymbolSize);
        paintSymbol(painter, frame, m_symbol, painter.pen().color());
    }
    paintTextLine(painter, all.adjusted(left + symbolRoom(), 0, 0, 0), shown);
}

}  // namespace lumo
