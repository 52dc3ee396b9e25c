#include "system/WelcomePopup.h"

#include <QPainter>

#include "app/UIState.h"
#include "controls/BrandMark.h"
#include "controls/Panel.h"
#include "controls/Popup.h"
#include "controls/PushButton.h"
#include "controls/Theme.h"
#include "system/PermissionExplainerRow.h"
#include "system/PermissionManager.h"
#include "system/PromptCard.h"

namespace lumo {
namespace {

constexpr int kSymbolHeight = 48;
constexpr int kLineHeight = 1;
constexpr double kBoxRadius = 12.0;

/// The two permissions, one below the other.
class ExplainerBox final : public QWidget {
public:
    ExplainerBox()
        : m_microphone(new PermissionExplainerRow("mic.fill", "1. Microphone Access",
                                                  "Drives Mode 17 Music Reactive Lighting & frequency equalizer.",
                                                  this)),
          m_keys(new PermissionExplainerRow("keyboard.fill", "2. Input Monitoring & Accessibility",
                                            "Allows Macro Studio key sequence recording & global macro triggers.",
                                            this)) {
        const int width = PromptCard::contentWidth();
        const int upper = m_microphone->heightWithin(width);
        const int lower = m_keys->heightWithin(width);
        m_microphone->setGeometry(0, 0, width, upper);
        m_keys->setGeometry(0, upper + kLineHeight, width, lower);
        resize(width, upper + kLineHeight + lower);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintPanel(painter, rect(), kBoxRadius, theme::kPopupInset, theme::kCardLine);
        constexpr int kTextX = PermissionExplainerRow::kTextX;
        painter.fillRect(kTextX, m_microphone->height(), width() - kTextX - 1, kLineHeight, theme::kExplainerLine);
    }

private:
    PermissionExplainerRow* m_microphone;
    PermissionExplainerRow* m_keys;
};

}  // namespace

Popup* makeWelcomePopup(PermissionManager& permissions, UIState& state, QWidget* parent) {
    constexpr PromptCard::Texts kTexts{
        "Welcome to Vexa Lumo 65",
        "To unlock full RGB music equalization & macro playback, macOS requires two permissions:", "Grant Permissions",
        "Later / Settings"};
    auto* const card = new PromptCard(
        {kSymbolHeight,
         [](QPainter& painter, const QRectF& frame) { BrandMark().paint(painter, frame, theme::kAccent); }},
        kTexts, new ExplainerBox);
    QObject::connect(&card->first(), &PushButton::clicked, card, [&permissions] {
        permissions.requestAllInitialPermissions();
        permissions.completeFirstLaunch();
    });
    QObject::connect(&card->second(), &PushButton::clicked, card, [&permissions, &state] {
        permissions.completeFirstLaunch();
        state.currentTab.set(NavTab::settings);
    });
    return new Popup("Welcome to Vexa Lumo 65", card, card->ground(), card->first(), card->second(), parent);
}

}  // namespace lumo
