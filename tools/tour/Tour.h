// One step after the other: do something, wait until the window shows it, take a picture.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <deque>
#include <functional>

class QWidget;

namespace lumo::tour {

/// Main thread, over the running event loop. Ends the application with 0 when all was seen, and with 1 when a step did
/// not come about within its time.
class Tour final {
public:
    /// The folder exists.
    Tour(QWidget& window, QString folder);

    /// `act` runs, then the tour goes on as soon as `isSeen` says yes.
    void then(QString what, std::function<void()> act, std::function<bool()> isSeen);
    /// As PNG, at the scale of the screen. Lets fades and hovers end before.
    void picture(const QString& fileName);

    void begin();

private:
    struct Step {
        QString what;
        std::function<void()> act;
        std::function<bool()> isSeen;
    };
    void beginStep();
    void look();
    void save(const QString& fileName);
    void giveUp(const QString& why);

    QWidget& m_window;
    QString m_folder;
    std::deque<Step> m_steps;
    QTimer m_look;
    QElapsedTimer m_sinceBegin;
};

}  // namespace lumo::tour
