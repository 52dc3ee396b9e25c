#include "controls/IconButton.h"

#include <QPainter>
#include <utility>

#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/Symbol.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr PressColors kFill{theme::white(0), theme::white(8), theme::kControlPressed};
constexpr PressColors kSymbol{theme::kTextBody, theme::white(100), theme::kTextRowPressed};
constexpr QColor kNoLine{0, 0, 0, 0};

}  // namespace

IconButton::IconButton(const QString& name, QString symbol, double symbolSize, QWidget* parent)
    : PushControl(name, QAccessible::PushButton, parent), m_symbol(std::move(symbol)), m_symbolSize(symbolSize) {
    resize(kSize, kSize);
}

RingShape IconButton::ringShape() const { return ringAround(rect(), theme::kButtonRadius); }

void IconButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kButtonRadius, kFill.at(hover(), press()), kNoLine);
    QRectF frame(0.0, 0.0, m_symbolSize, m_symbolSize);
    frame.moveCenter(QRectF(rect()).center());
    paintSymbol(painter, frame, m_symbol, kSymbol.at(hover(), press()));
}

}  // namespace lumo
