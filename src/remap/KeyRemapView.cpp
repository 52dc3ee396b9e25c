#include "remap/KeyRemapView.h"

#include <algorithm>

#include "app/UIState.h"
#include "controls/Card.h"
#include "controls/CardRows.h"
#include "controls/PushButton.h"
#include "controls/Section.h"
#include "controls/Theme.h"
#include "keyboard/KeyboardModel.h"
#include "remap/ActionPage.h"
#include "remap/CategoryList.h"
#include "remap/RemapCatalog.h"
#include "remap/RemapCategory.h"
#include "remap/TargetPanel.h"

namespace lumo {
namespace {

constexpr int kNarrowCategories = 176;  // in the smallest window
constexpr int kWideCategories = 192;    // in the usual one, and in larger ones
constexpr int kNarrowPage = 868;
constexpr int kUsualPage = 928;
constexpr int kButtonGap = 8;
constexpr int kButtonPadding = 12;

constexpr int kLeastRight = 480;

constexpr ActionPage::Measures kFiveCards{5, 8, 80, 140, 2};
constexpr ActionPage::Measures kFourCards{4, 8, 80, 140, 2};
constexpr ActionPage::Measures kFunctionKeys{6, 8, 56, 56};
constexpr ActionPage::Measures kSmallKeys{13, 6, 28, 40};

int footerHeight() { return theme::grown(32); }

int actionsTop() { return TargetPanel::panelHeight() + theme::kCardGap; }

int footerRoom() { return theme::kCardGap + footerHeight(); }

int categoriesWidth(int pageWidth) {
    const int wider = (pageWidth - kNarrowPage) * (kWideCategories - kNarrowCategories) / (kUsualPage - kNarrowPage);
    return theme::widened(std::clamp(kNarrowCategories + wider, kNarrowCategories, kWideCategories));
}

Card* makeCategoryCard(CategoryList* categories, QWidget* parent) {
    auto* const section = new Section("CATEGORIES", nullptr);
    section->setContent(categories);
    return new Card(section, parent);
}

}  // namespace

KeyRemapView::KeyRemapView(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main, QWidget* parent)
    : QWidget(parent),
      mediaActions(remapItems(kMediaActions)),
      systemActions(remapItems(kSystemActions)),
      mouseActions(remapItems(kMouseActions)),
      m_state(state),
      m_keyboard(keyboard),
      m_actions(link, state, keyboard),
      m_categories(new CategoryList(nullptr)),
      m_categoryCard(makeCategoryCard(m_categories, this)),
      m_target(new TargetPanel(this)),
      m_pages(makePages()),
      m_save(new PushButton("Save Key Matrix", look::kPrimary, this)),
      m_reset(new PushButton("Reset to Defaults", look::kPlain, this)),
      m_refresh(main, [this] { refresh(); }),
      m_stateChanges(state.observe([this] { m_refresh.request(); })),
      m_keyboardChanges(keyboard.observe([this] { m_refresh.request(); })) {
    m_save->setSymbol("arrow.down.doc.fill");
    connectControls();
    refresh();
}

KeyRemapView::Pages KeyRemapView::makePages() {
    auto* const multimedia = new ActionPage(kFiveCards, this);
    multimedia->addCards(mediaActions);
    auto* const mouse = new ActionPage(kFiveCards, this);
    mouse->addCards(mouseActions);
    auto* const shortcuts = new ActionPage(kFourCards, this);
    shortcuts->addCards(systemActions);
    auto* const functionKeys = new ActionPage(kFunctionKeys, this);
    functionKeys->addFunctionKeys();
    auto* const letters = new ActionPage(kSmallKeys, this);
    letters->addKeys("LETTERS (A-Z)", basicLetters);
    letters->addKeys("NUMBERS (0-9)", basicNumbers);
    return {{kMultimediaCategory.key, multimedia},
            {kMouseCategory.key, mouse},
            {kShortcutsCategory.key, shortcuts},
            {kFunctionCategory.key, functionKeys},
            {kLettersCategory.key, letters}};
}

void KeyRemapView::connectControls() {
    connect(m_categories, &CategoryList::chosen, this, [this](std::string_view key) { m_actions.chooseCategory(key); });
    for (const auto& [key, page] : m_pages) {
        connect(page, &ActionPage::chosen, this,
                [this](const Binding& binding) { m_actions.assignAction(binding.name, binding.bytes, binding.dword); });
    }
    connect(m_save, &QAbstractButton::clicked, this, [this] { m_actions.saveKeyMatrix(); });
    connect(m_reset, &QAbstractButton::clicked, this, [this] { m_actions.resetToDefaults(); });
}

void KeyRemapView::refresh() {
    const KeyCap* const target = m_keyboard.firstSelectedKey();
    m_categories->setSelected(m_state.remapCategory.get());
    m_target->setTarget(target);
    for (const auto& [key, page] : m_pages) {
        page->setVisible(key == m_state.remapCategory.get());
        page->setBound(target ? target->remapBytes : std::nullopt);
    }
}

void KeyRemapView::resizeEvent(QResizeEvent*) {
    const CardColumn categories{{0.0, static_cast<double>(categoriesWidth(width()))},
                                [this](int) { return m_categoryCard->leastHeight(); },
                                [this](const QRect& place) { m_categoryCard->setGeometry(place); }};
    const CardColumn actions{{1.0, static_cast<double>(theme::widened(kLeastRight))},
                             [this](int room) { return actionsTop() + leastActionsHeight(room) + footerRoom(); },
                             [this](const QRect& place) { placeActions(place); }};
    placeCards(*this, theme::kShortestPage, std::array{categories, actions});
}

/// Of the highest of the pages: the scroll position shall not jump with the category.
int KeyRemapView::leastActionsHeight(int width) const {
    int least = 0;
    for (const auto& [key, page] : m_pages) least = std::max(least, page->leastHeightWithin(width));
    return least;
}

void KeyRemapView::placeActions(const QRect& place) {
    const int left = place.left();
    const int top = place.top();
    const int room = place.width();
    m_target->setGeometry(left, top, room, TargetPanel::panelHeight());
    for (const auto& [key, page] : m_pages) {
        page->setGeometry(left, top + actionsTop(), room, place.height() - actionsTop() - footerRoom());
    }
    const int right = left + room;
    const int footerY = top + place.height() - footerHeight();
    const int resetWidth = m_reset->widthWith(kButtonPadding);
    const int saveWidth = m_save->widthWith(kButtonPadding);
    m_reset->setGeometry(right - resetWidth, footerY, resetWidth, footerHeight());
    m_save->setGeometry(right - resetWidth - kButtonGap - saveWidth, footerY, saveWidth, footerHeight());
}

}  // namespace lumo
