#include "controls/IconButton.h"

#include <QPainter>
#include <utility>

#include "controls/Panel.h"
#include "controls/Symbol.h"
#include "controls/Theme.h"

namespace lumo {

constinit const ButtonSkin look::kGhost{{theme::white(0), theme::white(8), theme::kControlPressed},
                                        {theme::kTextBody, theme::white(100), theme::kTextRowPressed},
                                        {0, 0, 0, 0}};
constinit const ButtonSkin look::kFilled{{theme::kControl, theme::kControlHover, theme::kControlPressed},
                                         {theme::kTextButton, theme::white(100), theme::kTextRowPressed},
                                         theme::kControlLine};

IconButton::IconButton(const QString& name, QString symbol, double symbolSize, QWidget* parent, const ButtonSkin& skin)
    : PushControl(name, QAccessible::PushButton, parent),
      m_skin(skin),
      m_symbol(std::move(symbol)),
      m_symbolSize(symbolSize) {
    resize(kSize, kSize);
}

RingShape IconButton::ringShape() const { return ringAround(rect(), radius()); }

double IconButton::radius() const { return width() < kSize ? theme::kSmallRadius : theme::kButtonRadius; }

void IconButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), radius(), m_skin.fill.at(hover(), press()), m_skin.line);
    QRectF frame(0.0, 0.0, m_symbolSize, m_symbolSize);
    frame.moveCenter(QRectF(rect()).center());
    paintSymbol(painter, frame, m_symbol, m_skin.text.at(hover(), press()));
}

}  // namespace lumo
