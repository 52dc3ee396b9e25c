#include "keyboard/LightingControlView.h"

#include "app/UIState.h"
#include "controls/Card.h"
#include "device/VexaProtocol.h"
#include "keyboard/EffectList.h"

namespace lumo {
namespace {

QColor shown(const Color& color) {
    const ColorBytes bytes = toBytes(color);
    return {bytes.r, bytes.g, bytes.b};
}

}  // namespace

LightingControlView::LightingControlView(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main,
                                         QWidget* parent)
    : QWidget(parent),
      m_link(link),
      m_state(state),
      m_actions(link, state, keyboard),
      m_effects(new EffectList(effectCatalog, this)),
      m_effectCard(new Card("LIGHTING EFFECT", m_effects, this)),
      m_refresh(main, [this] { refresh(); }),
      m_linkChanges(link.observe([this] { m_refresh.request(); })),
      m_stateChanges(state.observe([this] { m_refresh.request(); })) {
    connect(m_effects, &EffectList::chosen, this, [this](std::int64_t number) { m_actions.chooseEffect(number); });
    refresh();
}

void LightingControlView::refresh() {
    m_effects->setSelected(m_link.activeModeId.get());
    m_effects->setChosenColor(shown(m_state.selectedColor.get()));
}

void LightingControlView::resizeEvent(QResizeEvent*) { m_effectCard->setGeometry(rect()); }

}  // namespace lumo
