// The window's content: header, page and status bar.
#pragma once

#include <QWidget>

#include "foundation/CoalescedRefresh.h"
#include "foundation/Observable.h"

class QAction;

namespace lumo {

class HeaderBar;
class LightingControlView;
class StatusBar;
class UIState;
class VexaProtocol;

/// Main thread. Asks for the shared objects, which outlive it. Laid out for 900 x 680 points and up.
class MainView final : public QWidget {
    Q_OBJECT

public:
    /// `quit` becomes the one item of the menu behind the header's hexagon, and outlives this view; null where the
    /// system itself shows the program's menu.
    explicit MainView(QAction* quit, QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void refresh();

    VexaProtocol& m_link;
    UIState& m_state;
    HeaderBar* m_header;
    LightingControlView* m_lighting;
    StatusBar* m_status;
    CoalescedRefresh m_refresh;
    Subscription m_linkChanges;
};

}  // namespace lumo
