#include "system/RecheckPopup.h"

#include <QPainter>

#include "app/UIState.h"
#include "controls/Panel.h"
#include "controls/Popup.h"
#include "controls/PushButton.h"
#include "controls/Symbol.h"
#include "controls/TextBlock.h"
#include "controls/Theme.h"
#include "system/PermissionManager.h"
#include "system/PromptCard.h"

namespace lumo {
namespace {

constexpr int kSymbolHeight = 44;
constexpr int kPadding = 12;
constexpr int kSidePadding = 14;
constexpr int kMostLines = 6;
constexpr double kBoxRadius = 12.0;
constexpr auto kNotice =
    "\u26A0\uFE0F macOS Security Notice: If permissions are already enabled in System Settings but features are not "
    "responding, macOS TCC privacy cache is out of sync. Please remove (-) Vexa Lumo 65 and add (+) it back in System "
    "Settings.";

class NoticeBox final : public QWidget {
public:
    NoticeBox() : m_text(new TextBlock(theme::kNoticeStyle, theme::kTextNotice, kMostLines, this)) {
        m_text->setText(kNotice);
        const int textWidth = PromptCard::contentWidth() - 2 * kSidePadding;
        const int textHeight = m_text->heightWithin(textWidth);
        m_text->setGeometry(kSidePadding, kPadding, textWidth, textHeight);
        resize(PromptCard::contentWidth(), textHeight + 2 * kPadding);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintPanel(painter, rect(), kBoxRadius, theme::kNoticeFill, theme::kNoticeLine);
    }

private:
    TextBlock* m_text;
};

void paintShield(QPainter& painter, const QRectF& frame) {
    paintSymbol(painter, frame, "exclamationmark.shield.fill", theme::kTextWarn);
}

}  // namespace

Popup* makeRecheckPopup(PermissionManager& permissions, UIState& state, QWidget* parent) {
    constexpr PromptCard::Texts kTexts{
        "Permissions Setup Needed",
        "One or both required permissions (Microphone or Input Monitoring) are not granted.", "Fix in System Settings",
        "Dismiss to Settings"};
    auto* const card = new PromptCard({kSymbolHeight, paintShield}, kTexts, new NoticeBox);
    QObject::connect(&card->first(), &PushButton::clicked, card, [&permissions, &state] {
        permissions.dismissRecheckPopup();
        state.currentTab.set(NavTab::settings);
        permissions.openSystemSettings(PermissionType::microphone);
    });
    QObject::connect(&card->second(), &PushButton::clicked, card, [&permissions, &state] {
        permissions.dismissRecheckPopup();
        state.currentTab.set(NavTab::settings);
    });
    return new Popup("Permissions Setup Needed", card, card->ground(), card->first(), card->second(), parent);
}

}  // namespace lumo
