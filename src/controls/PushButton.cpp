#include "controls/PushButton.h"

#include <cmath>

#include "controls/Panel.h"
#include "controls/Picture.h"
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
constexpr ButtonSkin kPlainSkin{{theme::kControl, theme::kControlHover, theme::kControlPressed},
                                {theme::kTextButton, theme::white(100), theme::kTextRowPressed},
                                theme::kControlLine};
constexpr ButtonSkin kBoundSkin{{theme::kAccentSoft, theme::kAccentSoft, theme::kAccentSoft},
                                {theme::white(100), theme::white(100), theme::white(100)},
                                theme::kSelectedLine};
constexpr ButtonSkin withLine(ButtonSkin skin, QColor line) {
    skin.line = line;
    return skin;
}

constexpr ButtonSkin kGreySkin{
    kPlainSkin.fill, {QColor(0xB0, 0xB0, 0xB5), theme::white(100), theme::kTextRowPressed}, theme::kControlLine};
constexpr ButtonSkin kRecordingSkin{
    {QColor(0xFF, 0x5C, 0x52, 31), QColor(0xFF, 0x5C, 0x52, 46), QColor(0xFF, 0x5C, 0x52, 15)},
    {QColor(0xFF, 0x8A, 0x80), QColor(0xFF, 0xA9, 0xA2), QColor(0xE0, 0x7F, 0x78)},
    {0xFF, 0x6B, 0x61, 115}};

}  // namespace

constinit const ButtonLook kPlain{kPlainSkin, {}};
constinit const ButtonLook kSmall{kPlainSkin, {}, theme::kSmallButtonStyle, theme::kSmallRadius};
constinit const ButtonLook kRecord{kGreySkin, kRecordingSkin};
constinit const ButtonLook kPrimary{withLine(kAccentSkin, theme::kPrimaryLine), {}};
constinit const ButtonLook kLayer{{{theme::white(7), theme::white(12), theme::whitePerMille(45)},
                                   {theme::kTextRow, theme::white(100), theme::kTextRowPressed},
                                   kNone},
                                  kAccentSkin};
constinit const ButtonLook kProfile{{{QColor(0x24, 0x24, 0x27), QColor(0x30, 0x30, 0x34), QColor(0x1E, 0x1E, 0x21)},
                                     {theme::kTextProfile, QColor(0xD0, 0xD0, 0xD4), theme::kTextProfile},
                                     kNone},
                                    kAccentSkin};
constinit const ButtonLook kAction{kPlainSkin, kBoundSkin, theme::kKeyButtonStyle};
constinit const ButtonLook kPopupPrimary{
    withLine(kAccentSkin, theme::kPrimaryLine), {}, theme::kPopupButtonStyle, theme::kPopupButtonRadius};
constinit const ButtonLook kPopupSecondary{
    {{theme::kPopupControl, theme::kPopupControlHover, theme::kPopupControlPressed},
     {theme::kTextButton, theme::white(100), theme::kTextRowPressed},
     theme::kControlLine},
    {},
    theme::kPopupButtonStyle,
    theme::kPopupButtonRadius};
constinit const ButtonLook kDanger{
    {{QColor(0xFF, 0x5C, 0x52, 26), QColor(0xFF, 0x5C, 0x52, 46), QColor(0xFF, 0x5C, 0x52, 15)},
     {QColor(0xFF, 0x90, 0x88), QColor(0xFF, 0xA9, 0xA2), QColor(0xE0, 0x7F, 0x78)},
     {0xFF, 0x6B, 0x61, 107}},
    {}};
constinit const ButtonLook kSmallPrimary{
    withLine(kAccentSkin, theme::kPrimaryLine), {}, theme::kSmallButtonStyle, theme::kSmallRadius};
constinit const ButtonLook kSmallQuiet{{{theme::white(5), theme::white(10), theme::white(3)},
                                        {QColor(0xDE, 0xDE, 0xE2), theme::white(100), theme::kTextRowPressed},
                                        kNone},
                                       {},
                                       theme::kSmallButtonStyle,
                                       theme::kSmallRadius};

}  // namespace look

namespace {

constexpr double kSymbolGap = 6.0;
constexpr double kLeastPadding = 6.0;

}  // namespace

PushButton::PushButton(const QString& text, const ButtonLook& look, QWidget* parent, QAccessible::Role role)
    : PushControl(text, role, parent), m_look(look), m_lettering(look.type) {}

void PushButton::setSymbol(const QString& name, double size) {
    m_symbol = name;
    m_symbolSize = size;
    update();
}

void PushButton::setPicture(const QImage& picture) {
    if (picture.cacheKey() == m_picture.cacheKey()) return;
    m_picture = picture;
    update();
}

void PushButton::setLabel(const QString& text) { rename(text); }

int PushButton::widthWith(int padding) const {
    return static_cast<int>(std::lround(symbolRoom() + m_lettering.widthOf(text()))) + 2 * padding;
}

QSize PushButton::sizeHint() const {
    return {static_cast<int>(std::ceil(symbolRoom() + m_lettering.widthOf(text()) + 2.0 * kLeastPadding)), height()};
}

RingShape PushButton::ringShape() const { return ringAround(rect(), m_look.radius); }

QString PushButton::toolTipText() const { return typeset(shownText()) == typeset(text()) ? QString() : text(); }

double PushButton::symbolRoom() const {
    return m_symbol.isEmpty() && m_picture.isNull() ? 0.0 : m_symbolSize + kSymbolGap;
}

QString PushButton::shownText() const {
    return m_lettering.elided(text(), width() - symbolRoom() - 2.0 * kLeastPadding);
}

QColor PushButton::blended(const PressColors& plain, const PressColors& selected) const {
    return mix(plain.at(hover(), press()), selected.at(hover(), press()), selection());
}

void PushButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const ButtonSkin& plain = m_look.skin;
    const ButtonSkin& selected = m_look.selected;
    paintPanel(painter, rect(), m_look.radius, blended(plain.fill, selected.fill),
               mix(plain.line, selected.line, selection()));
    painter.setPen(blended(plain.text, selected.text));
    paintLabel(painter);
}

void PushButton::paintMark(QPainter& painter, const QRectF& frame) const {
    if (!m_symbol.isEmpty()) return paintSymbol(painter, frame, m_symbol, painter.pen().color());
    paintPicture(painter, frame, m_picture);
}

void PushButton::paintLabel(QPainter& painter) const {
    const QString shown = shownText();
    const double left = (width() - symbolRoom() - m_lettering.widthOf(shown)) / 2.0;
    const QRectF all = rect();
    paintMark(painter, QRectF(left, all.center().y() - m_symbolSize / 2.0, m_symbolSize, m_symbolSize));
    m_lettering.paint(painter, all.adjusted(left + symbolRoom(), 0, 0, 0), shown);
}

}  // namespace lumo
