#include "keyboard/KeyboardCanvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "app/AssetManager.h"
#include "app/UIState.h"
#include "controls/Panel.h"
#include "device/VexaProtocol.h"
#include "keyboard/AccessibleKeyboard.h"
#include "keyboard/KeyOverlayView.h"
#include "keyboard/KeyboardModel.h"

namespace lumo {
namespace {

QImage caseAndCaps() { return AssetManager::shared().image("keyimg.png"); }

bool isMultiSelect(Qt::KeyboardModifiers modifiers) {
#ifdef Q_OS_MACOS
    return modifiers & (Qt::ControlModifier | Qt::ShiftModifier);  // Qt calls Command so
#else
    return modifiers & (Qt::ControlModifier | Qt::MetaModifier | Qt::ShiftModifier);
#endif
}

std::optional<Direction> directionOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return Direction::left;
        case Qt::Key_Right:
            return Direction::right;
        case Qt::Key_Up:
            return Direction::up;
        case Qt::Key_Down:
            return Direction::down;
        default:
            return std::nullopt;
    }
}

bool isPressKey(int key) { return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace

KeyboardCanvas::KeyboardCanvas(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main, Clock clock,
                               QWidget* parent)
    : QWidget(parent),
      m_link(link),
      m_state(state),
      m_keyboard(keyboard),
      m_clock(std::move(clock)),
      m_actions(link, state, keyboard),
      m_picture(keyboard.keys.get(), &caseAndCaps),
      m_motion(*this, [this] { composeFrame(); }),
      m_frames(*this, [this] { composeFrame(); }),
      m_refresh(main, [this] { refresh(); }),
      m_linkChanges(link.observe([this] { m_refresh.request(); })),
      m_stateChanges(state.observe([this] { m_refresh.request(); })),
      m_keyboardChanges(keyboard.observe([this] { m_refresh.request(); })) {
    m_picture.drawAhead(devicePixelRatioF());
    setFixedSize(kPictureSize.toSize());
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName("Keyboard");
    refresh();
}

const std::vector<KeyCap>& KeyboardCanvas::keys() const { return m_keyboard.keys.get(); }

QRect KeyboardCanvas::keyRect(std::size_t index) const {
    const KeyCap& key = keys()[index];
    return QRectF(key.x, key.y, key.width, key.height).toAlignedRect().translated(mapToGlobal(QPoint()));
}

QAccessibleInterface* KeyboardCanvas::makeAccessible() { return new AccessibleKeyboard(*this); }

void KeyboardCanvas::refresh() {
    m_frames.setWanted(LightingEngine::isMoving(m_link.activeModeId.get()));
    followSelection();
    followBindings();
    followHover();
    composeFrame();
}

void KeyboardCanvas::followSelection() {
    const std::set<std::string>& selected = m_keyboard.selectedKeyIds.get();
    const std::vector<bool> before = std::exchange(m_isSelected, std::vector<bool>(keys().size()));
    for (std::size_t i = 0; i < keys().size(); ++i) {
        m_isSelected[i] = selected.contains(keys()[i].id);
        if (!before.empty() && before[i] != m_isSelected[i]) tellOfSelection(*this, i);
    }
}

void KeyboardCanvas::followBindings() {
    std::vector<std::optional<std::string>> labels;
    for (const KeyCap& key : keys()) labels.push_back(key.remapLabel);
    const auto before = std::exchange(m_remapLabels, std::move(labels));
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] != m_remapLabels[i]) tellOfName(*this, i);
    }
}

void KeyboardCanvas::followHover() {
    const std::optional<std::string>& id = m_state.hoveredKeyId.get();
    const auto hovered = std::ranges::find_if(keys(), [&id](const KeyCap& key) { return key.id == id; });
    const bool isOne = hovered != keys().end();
    m_motion.setHovered(isOne ? Key(static_cast<std::size_t>(hovered - keys().begin())) : std::nullopt);
}

KeyLook KeyboardCanvas::lookOf(std::size_t index, double time) const {
    const KeyOverlayView view{keys()[index],
                              m_isSelected[index],
                              m_state.hoveredKeyId.get() == keys()[index].id,
                              m_link.activeModeId.get(),
                              time,
                              m_link.primaryColor.get(),
                              m_state.brightnessLevel.get(),
                              m_state.speedLevel.get()};
    const double press = m_motion.press(index);
    const double hover = m_motion.hover(index) * (1.0 - press);  // a pressed key looks pressed, not hovered
    return {view.lighting(), view.isSelected, showsRing() && index == m_current, hover, press};
}

void KeyboardCanvas::composeFrame() {
    const double time = m_clock();
    m_looks.clear();
    for (std::size_t i = 0; i < keys().size(); ++i) m_looks.push_back(lookOf(i, time));
    const QRect changed = m_picture.compose(m_looks);
    if (!changed.isEmpty()) update(changed);
}

void KeyboardCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& part : event->region()) {  // what lies above may leave several
        painter.setClipRect(part);
        m_picture.paint(painter, QPointF(), part);
    }
}

KeyboardCanvas::Key KeyboardCanvas::keyBelow(const QPointF& place) const { return keyAt(keys(), place.x(), place.y()); }

void KeyboardCanvas::setPointed(const Key& key) {
    if (key == m_pointed) return;
    m_pointed = key;
    if (key) return m_actions.pointerEntered(keys()[*key].id);
    m_actions.pointerLeft();
}

void KeyboardCanvas::press(const Key& key) {
    m_pressed = key;
    m_motion.setPressed(key);
}

void KeyboardCanvas::clickKey(std::size_t index, bool multiSelect) {
    setCurrentKey(index);
    m_actions.click(keys()[index].id, multiSelect);
}

void KeyboardCanvas::setCurrentKey(std::size_t index) {
    if (index == m_current) return;
    m_current = index;
    composeFrame();
    tellOfFocus(*this, index);
}

void KeyboardCanvas::focusInEvent(QFocusEvent* event) {
    m_hasKeyboardFocus = showsFocusRing(event->reason(), m_hasKeyboardFocus);
    composeFrame();
    tellOfFocus(*this, m_current);
}

void KeyboardCanvas::focusOutEvent(QFocusEvent*) {
    press(std::nullopt);
    composeFrame();
}

void KeyboardCanvas::hideEvent(QHideEvent*) {
    press(std::nullopt);
    setPointed(std::nullopt);
}

void KeyboardCanvas::leaveEvent(QEvent*) { setPointed(std::nullopt); }

void KeyboardCanvas::mouseMoveEvent(QMouseEvent* event) {
    setPointed(keyBelow(event->position()));
    // A pressed key comes up while the pointer is elsewhere, and goes down again when it comes back.
    if (m_pressed) m_motion.setPressed(m_pointed == m_pressed ? m_pressed : std::nullopt);
}

void KeyboardCanvas::mousePressEvent(QMouseEvent* event) {
    const Key key = keyBelow(event->position());
    if (event->button() != Qt::LeftButton || !key) return event->ignore();
    m_hasKeyboardFocus = false;
    press(key);
    composeFrame();
}

void KeyboardCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_pressed) return event->ignore();
    const Key pressed = m_pressed;
    press(std::nullopt);
    if (keyBelow(event->position()) == pressed) clickKey(*pressed, isMultiSelect(event->modifiers()));
}

void KeyboardCanvas::keyPressEvent(QKeyEvent* event) {
    if (isPressKey(event->key())) {
        if (event->isAutoRepeat()) return;
        press(m_current);
        return clickKey(m_current, isMultiSelect(event->modifiers()));
    }
    const auto direction = directionOf(event->key());
    if (!direction) return event->ignore();
    m_hasKeyboardFocus = true;
    setCurrentKey(neighbour(keys(), m_current, *direction).value_or(m_current));
    composeFrame();
}

void KeyboardCanvas::keyReleaseEvent(QKeyEvent* event) {
    if (!isPressKey(event->key())) return event->ignore();
    if (!event->isAutoRepeat()) press(std::nullopt);
}

}  // namespace lumo
