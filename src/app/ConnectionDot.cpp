#include "app/ConnectionDot.h"

#include <QPainter>
#include <cmath>
#include <numbers>

#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kRimWidth = 0.75;

class AccessibleDot final : public QAccessibleWidget {
public:
    explicit AccessibleDot(ConnectionDot& dot) : QAccessibleWidget(&dot, QAccessible::Graphic) {}

    [[nodiscard]] QRect rect() const override {
        const auto& dot = static_cast<const ConnectionDot&>(*widget());
        return dot.dotRect().translated(dot.mapToGlobal(QPoint()));
    }
};

/// How strong a blurred disc of that radius is at a distance from its centre, 0 to 1.
double blurredDisc(double distance, double radius, double sigma) {
    constexpr int kRings = 16;
    constexpr int kSpokes = 32;
    double sum = 0.0;
    for (int ring = 0; ring < kRings; ++ring) {
        const double rho = radius * (ring + 0.5) / kRings;
        for (int spoke = 0; spoke < kSpokes; ++spoke) {
            const double angle = 2.0 * std::numbers::pi * spoke / kSpokes;
            const double squared = distance * distance + rho * rho - 2.0 * distance * rho * std::cos(angle);
            sum += rho * std::exp(-squared / (2.0 * sigma * sigma));
        }
    }
    return sum * (radius / kRings) * (2.0 * std::numbers::pi / kSpokes) / (2.0 * std::numbers::pi * sigma * sigma);
}

/// What the dot throws around it: a blurred disc, wider than the dot by `spread`.
struct Glow {
    QColor color;
    double opacity = 1.0;
    double spread = 0.0;  // points
    double sigma = 1.0;   // points
};
constexpr Glow kConnectedGlow{theme::kOk, 0.55, 1.0, 3.0};
constexpr Glow kDisconnectedGlow{theme::kAccentLine, 0.60, 2.0, 4.0};

QRadialGradient paintOf(const Glow& glow, QPointF centre) {
    constexpr int kStops = 16;
    constexpr double kReach = ConnectionDot::kDiameter / 2.0 + ConnectionDot::kGlowReach;
    QRadialGradient gradient(centre, kReach);
    QColor color = glow.color;
    for (int stop = 0; stop < kStops; ++stop) {
        const double at = static_cast<double>(stop) / kStops;
        const double strength = blurredDisc(at * kReach, ConnectionDot::kDiameter / 2.0 + glow.spread, glow.sigma);
        color.setAlphaF(static_cast<float>(glow.opacity * strength));
        gradient.setColorAt(at, color);
    }
    gradient.setColorAt(1.0, Qt::transparent);
    return gradient;
}

}  // namespace

ConnectionDot::ConnectionDot(QWidget* parent) : QWidget(parent) {
    resize(kDiameter + 2 * kGlowReach, kDiameter + 2 * kGlowReach);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    applyState();
}

void ConnectionDot::setConnected(bool connected) {
    if (connected == m_connected) return;
    m_connected = connected;
    applyState();
    update();
}

void ConnectionDot::applyState() {
    m_glow = paintOf(m_connected ? kConnectedGlow : kDisconnectedGlow, QRectF(rect()).center());
    setAccessibleName(m_connected ? "Connected" : "Disconnected");
}

QRect ConnectionDot::dotRect() const { return rect().adjusted(kGlowReach, kGlowReach, -kGlowReach, -kGlowReach); }

QAccessibleInterface* ConnectionDot::makeAccessible() { return new AccessibleDot(*this); }

void ConnectionDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), m_glow);
    painter.setPen(Qt::NoPen);
    const QRectF dot = dotRect();
    if (!m_connected) {
        painter.setBrush(theme::kAccentLine);
        painter.drawEllipse(dot.adjusted(-kRimWidth, -kRimWidth, kRimWidth, kRimWidth));
    }
    painter.setBrush(m_connected ? theme::kOk : theme::kAccent);
    painter.drawEllipse(dot);
}

}  // namespace lumo
