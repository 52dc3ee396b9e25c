#include "app/MainView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>
#include <algorithm>

#include "app/HeaderBar.h"
#include "app/SharedObjects.h"
#include "app/StatusBar.h"
#include "controls/Theme.h"
#include "keyboard/LightingControlView.h"

namespace lumo {
namespace {

constexpr int kWidestColumn = 1040;
constexpr int kPageTop = 340;  // the keyboard's row ends here
constexpr int kPageToStatus = 12;

MainQueue mainQueue() { return SharedObjects::current().mainQueue(); }

QRect pageArea(const QSize& window) {
    const int width = std::min(window.width() - 2 * theme::kWindowMargin, kWidestColumn);
    const int height = window.height() - StatusBar::kHeight - kPageToStatus - kPageTop;
    return {(window.width() - width) / 2, kPageTop, width, height};
}

}  // namespace

MainView::MainView(QAction* quit, QWidget* parent)
    : QWidget(parent),
      m_link(VexaProtocol::shared()),
      m_state(UIState::shared()),
      m_header(new HeaderBar(quit, this)),
      m_lighting(new LightingControlView(m_link, m_state, KeyboardModel::shared(), mainQueue(), this)),
      m_status(new StatusBar(this)),
      m_refresh(mainQueue(), [this] { refresh(); }),
      m_linkChanges(m_link.observe([this] { m_refresh.request(); })) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    refresh();
}

void MainView::refresh() {
    m_header->setConnection(m_link.isConnected.get(), m_link.connectionType.get());
    m_status->setMessage(m_link.statusMessage.get());
}

void MainView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    if (QWindow* const handle = window()->windowHandle()) handle->startSystemMove();
}

void MainView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), theme::kWindow);
}

void MainView::showEvent(QShowEvent*) {
    // A window without a focus of its own begins on its first control, which would show no ring for it.
    if (!window()->focusWidget()) setFocus();
}

void MainView::resizeEvent(QResizeEvent*) {
    m_header->setGeometry(0, 0, width(), HeaderBar::kHeight);
    m_lighting->setGeometry(pageArea(size()));
    m_status->setGeometry(0, height() - StatusBar::kHeight, width(), StatusBar::kHeight);
}

}  // namespace lumo
