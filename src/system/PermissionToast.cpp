#include "system/PermissionToast.h"

#include <QPainter>

#include "app/UIState.h"
#include "controls/DropShadow.h"
#include "controls/IconButton.h"
#include "controls/LeavingFocus.h"
#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/Symbol.h"
#include "controls/Theme.h"
#include "system/PermissionManager.h"
#include "system/ToastText.h"

namespace lumo {
namespace {

constexpr int kSymbolX = 16;
constexpr int kSymbolSize = 22;
constexpr int kTextX = 50;
constexpr int kTextWidth = 288;
constexpr int kTextPadding = 13;  // above and below
constexpr int kTextToFix = 12;
constexpr int kFixWidth = 104;
constexpr int kFixToClose = 6;
constexpr int kFoot = 12;  // right of all
constexpr double kCloseSymbol = 16.0;

int fixWidth() { return theme::widened(kFixWidth); }

/// All but the text, on both sides of it.
int beside() { return kTextX + kTextToFix + fixWidth() + kFixToClose + IconButton::kSize + kFoot; }

int wholeWidth() { return beside() + theme::widened(kTextWidth); }

SoftShadow toastShadow() { return {0.50, 16.0, 10.0}; }

class AccessibleToast final : public QAccessibleWidget {
public:
    explicit AccessibleToast(PermissionToast& toast) : QAccessibleWidget(&toast, QAccessible::AlertMessage) {}
};

}  // namespace

PermissionToast::PermissionToast(PermissionManager& permissions, UIState& state, QWidget* parent)
    : QWidget(parent),
      m_text(new ToastText("Audio reactive lighting or macros not working?",
                           "Permissions missing. Click to open Settings.", this)),
      m_fix(new PushButton("Fix in Settings", look::kPrimary, this)),
      m_close(new IconButton("Dismiss notification", "xmark", kCloseSymbol, this)),
      m_opacity(new QGraphicsOpacityEffect(this)),
      m_coming(theme::kPromptInMs, [this] { followAppearance(); }) {
    setAccessibleName(m_text->text());
    hide();
    setGraphicsEffect(m_opacity);
    m_shadow = new DropShadow(*this, toastShadow());
    setRoom(wholeWidth());
    const auto openSettings = [&state] { state.currentTab.set(NavTab::settings); };
    connect(m_text, &PushControl::clicked, this, openSettings);
    connect(m_fix, &PushControl::clicked, this, openSettings);
    connect(m_close, &PushControl::clicked, this, [&permissions] { permissions.dismissToast(); });
}

void PermissionToast::setShown(bool isShown) {
    if (isShown == m_coming.isShown()) return;
    setAttribute(Qt::WA_TransparentForMouseEvents, !isShown);  // what is on its way out stands in nobody's way
    if (isShown) {
        place();
        show();
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
        announce(*this, accessibleName());
    }
    m_coming.setShown(isShown);
}

void PermissionToast::setRoom(int room) {
    resize(std::min(room, wholeWidth()), ToastText::textHeight() + 2 * kTextPadding);
    const int fixHeight = theme::grown(IconButton::kSize);
    m_text->setGeometry(kTextX, kTextPadding, width() - beside(), ToastText::textHeight());
    const int fixX = kTextX + m_text->width() + kTextToFix;
    m_fix->setGeometry(fixX, (height() - fixHeight) / 2, fixWidth(), fixHeight);
    m_close->move(fixX + fixWidth() + kFixToClose, (height() - IconButton::kSize) / 2);
}

void PermissionToast::setCorner(QPoint corner) {
    m_corner = corner;
    place();
}

void PermissionToast::comeLastInTabOrder() {
    for (QWidget* const control :
         {static_cast<QWidget*>(m_text), static_cast<QWidget*>(m_fix), static_cast<QWidget*>(m_close)}) {
        QWidget* const last = window()->previousInFocusChain();  // the order is a circle, which begins at the window
        if (last != control) setTabOrder(last, control);
    }
}

void PermissionToast::followAppearance() {
    m_opacity->setEnabled(share() < 1.0);
    m_opacity->setOpacity(share());
    m_shadow->setShare(share());
    place();
    if (m_coming.isGone()) {
        letGoOfFocus(*this);
        hide();
    }
    emit shareChanged();
}

void PermissionToast::place() { move(m_corner - QPoint(width(), height()) + QPoint(0, qRound(m_coming.drop()))); }

QAccessibleInterface* PermissionToast::makeAccessible() { return new AccessibleToast(*this); }

void PermissionToast::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kCardRadius, theme::kToast, theme::kToastLine);
    const QRectF symbol(kSymbolX, (height() - kSymbolSize) / 2.0, kSymbolSize, kSymbolSize);
    paintSymbol(painter, symbol, "exclamationmark.triangle.fill", theme::kTextWarn);
}

}  // namespace lumo
