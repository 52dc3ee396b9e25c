// The updates of a window that its display grants, shared by all who ask for them.
#pragma once

#include <QObject>

class QWindow;

namespace lumo {

/// Main thread; belongs to the window. An update asked for here is answered with `granted` alone. One that only others
/// asked for goes on to Qt, whose own answer is to paint the whole window.
class WindowUpdates final : public QObject {
    Q_OBJECT
public:
    /// The window's one, made when it is first asked for.
    [[nodiscard]] static WindowUpdates& of(QWindow& window);

    /// Any number of requests before the next update are one.
    void request();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void granted();

private:
    explicit WindowUpdates(QWindow& window);

    QWindow& m_window;
    bool m_isRequested = false;
};

}  // namespace lumo
