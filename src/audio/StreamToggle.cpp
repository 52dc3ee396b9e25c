#include "audio/StreamToggle.h"

#include <QPainter>

#include "controls/Lettering.h"
#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kDotSize = 8.0;
constexpr double kRim = 1.5;
constexpr double kDotGap = 6.0;
constexpr double kLeastPadding = 8.0;

constexpr QColor kInk{0x04, 0x16, 0x1B};
constexpr PressColors kStreaming{{0x2C, 0xC9, 0xEE, 179}, {0x2C, 0xC9, 0xEE, 209}, {0x2C, 0xC9, 0xEE, 163}};
constexpr PressColors kStopped{theme::white(10), theme::white(15), theme::white(7)};
constexpr QColor kStreamingLine = theme::white(18);
constexpr QColor kDotStreaming{0x22, 0xE0, 0x6A};
constexpr QColor kDotStopped{0x9A, 0x9A, 0xA0};

Lettering lettering(bool isStreaming) { return Lettering(isStreaming ? theme::kStreamingStyle : theme::kButtonStyle); }

}  // namespace

StreamToggle::StreamToggle(QWidget* parent) : PushControl("STREAM: OFF", QAccessible::PushButton, parent) {}

void StreamToggle::setStreaming(bool isStreaming) {
    if (isStreaming == isSelected()) return;
    setSelected(isStreaming);
    rename(isStreaming ? "STREAMING: ON" : "STREAM: OFF");
}

RingShape StreamToggle::ringShape() const { return ringAround(rect(), theme::kButtonRadius); }

QString StreamToggle::shownText() const {
    return lettering(isSelected()).elided(text(), width() - kDotSize - kDotGap - 2.0 * kLeastPadding);
}

QString StreamToggle::toolTipText() const { return shownText() == text() ? QString() : text(); }

void StreamToggle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor fill = mix(kStopped.at(hover(), press()), kStreaming.at(hover(), press()), selection());
    paintPanel(painter, rect(), theme::kButtonRadius, fill, mix(theme::kControlLine, kStreamingLine, selection()));
    paintLabel(painter);
}

void StreamToggle::paintLabel(QPainter& painter) const {
    const Lettering letters = lettering(isSelected());
    const QString shown = shownText();
    const QRectF all = rect();
    const double left = (all.width() - kDotSize - kDotGap - letters.widthOf(shown)) / 2.0;
    const QRectF dot(left, all.center().y() - kDotSize / 2.0, kDotSize, kDotSize);
    painter.setPen(Qt::NoPen);
    if (isSelected()) {
        painter.setBrush(kInk);
        painter.drawEllipse(dot.adjusted(-kRim, -kRim, kRim, kRim));
    }
    painter.setBrush(isSelected() ? kDotStreaming : kDotStopped);
    painter.drawEllipse(dot);
    painter.setPen(isSelected() ? kInk : theme::kTextButton);
    letters.paint(painter, all.adjusted(left + kDotSize + kDotGap, 0, 0, 0), shown);
}

}  // namespace lumo
