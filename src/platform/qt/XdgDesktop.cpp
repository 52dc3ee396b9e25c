#include "platform/qt/XdgDesktop.h"

#include <QGuiApplication>
#include <QProcess>

#include "platform/NativeDesktop.h"
#include "platform/qt/OneInstance.h"

namespace lumo {
namespace {

class Connection final : public Registration {
public:
    explicit Connection(QMetaObject::Connection connection) : m_connection(std::move(connection)) {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() override { QObject::disconnect(m_connection); }

private:
    QMetaObject::Connection m_connection;
};

}  // namespace

void XdgDesktop::openThisApplication(Task completed) {
    one_instance::letGo();
    // Its own session: what ends this program, or the terminal it came from, does not end the new one.
    QProcess::startDetached(m_executable.isEmpty() ? QCoreApplication::applicationFilePath() : m_executable, {});
    completed();
}

void XdgDesktop::terminate() { QCoreApplication::quit(); }

std::unique_ptr<Registration> XdgDesktop::whenBecameActive(Task task) {
    return std::make_unique<Connection>(QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, qGuiApp,
                                                         [task = std::move(task)](Qt::ApplicationState state) {
                                                             if (state == Qt::ApplicationActive) task();
                                                         }));
}

std::unique_ptr<Desktop> makeNativeDesktop() { return std::make_unique<XdgDesktop>(); }

}  // namespace lumo
