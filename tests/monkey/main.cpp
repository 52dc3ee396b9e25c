// A monkey at the whole window, over the in-process keyboard: nothing may end the program, Qt has nothing to complain
// of, and after each minute, with its lists emptied and the window as at first, the program is as small as after the
// first one.
#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>
#include <QWindow>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "app/Program.h"
#include "monkey/Memory.h"
#include "monkey/Monkey.h"
#include "support/SeededRun.h"

namespace lumo::test {
namespace {

constexpr int kActEveryMs = 5;
constexpr int kMinuteMs = 60'000;
constexpr int kRestMs = 1'000;
constexpr double kMostGrowth = 1.05;

std::atomic<unsigned> complaints = 0;

void hear(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    std::fprintf(stderr, "%s: %s\n", context.category, qUtf8Printable(text));
    if (type != QtDebugMsg && type != QtInfoMsg) ++complaints;
}

QMainWindow* mainWindow() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (auto* const window = qobject_cast<QMainWindow*>(widget)) return window;
    }
    return nullptr;
}

/// From the window's first sight to the end of the process.
class Visit final {
public:
    Visit(QMainWindow& window, vk::DemoPlatform& platform, const SeededRun& run)
        : m_run(run), m_monkey(window, platform, run.seed) {
        QObject::connect(&m_turn, &QTimer::timeout, [this] { turn(); });
        QObject::connect(&m_minute, &QTimer::timeout, [this] { m_isMinuteOver = true; });
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, [this] { expectOver(); });
        m_sinceBegin.start();
        m_turn.start(kActEveryMs);
        m_minute.start(kMinuteMs);
    }

private:
    void turn() {
        if (m_isMinuteOver) return endMinute();
        if (m_sinceBegin.elapsed() < std::chrono::milliseconds(m_run.length).count()) return m_monkey.act();
        m_turn.stop();
        m_minute.stop();
        end();
    }

    /// All is as at first, and what goes later has gone, when the memory is looked at.
    void endMinute() {
        m_isMinuteOver = false;
        m_turn.stop();
        m_monkey.comeHome();
        QTimer::singleShot(kRestMs, [this] {
            m_lastMinute = privateMemory();
            if (m_firstMinute == 0) m_firstMinute = m_lastMinute;
            std::printf("%lld s: %.1f MiB\n", m_sinceBegin.elapsed() / 1000, m_lastMinute / 1024 / 1024);
            std::fflush(stdout);
            m_turn.start(kActEveryMs);
        });
    }

    void end() {
        const bool hasGrown = kMemoryIsMeaningful && m_lastMinute > kMostGrowth * m_firstMinute;
        if (hasGrown) std::fprintf(stderr, "FAILED: more memory than after the first minute\n");
        if (complaints > 0) std::fprintf(stderr, "FAILED: %u complaints of Qt's\n", complaints.load());
        std::printf("%lu acts in %lld s, %.1f MiB\n", m_monkey.acts(), m_sinceBegin.elapsed() / 1000,
                    privateMemory() / 1024 / 1024);
        std::fflush(stdout);
        m_isOver = true;
        QCoreApplication::exit(hasGrown || complaints > 0 || hasLostMemory() ? EXIT_FAILURE : EXIT_SUCCESS);
    }

    void expectOver() const {
        if (m_isOver) return;
        std::fprintf(stderr, "FAILED: the program was quit after %lu acts\n", m_monkey.acts());
        std::_Exit(EXIT_FAILURE);
    }

    const SeededRun m_run;
    Monkey m_monkey;
    QTimer m_turn;
    QTimer m_minute;
    QElapsedTimer m_sinceBegin;
    double m_firstMinute = 0;
    double m_lastMinute = 0;
    bool m_isMinuteOver = false;  // told in the middle of an act, perhaps
    bool m_isOver = false;
};

}  // namespace
}  // namespace lumo::test

int main(int argc, char** argv) {
    using namespace lumo::test;
    const SeededRun run = readSeededRun({argv, static_cast<std::size_t>(argc)});
    qInstallMessageHandler(hear);
    QApplication application(argc, argv);
    lumo::vk::DemoPlatform platform{lumo::vk::ReportLog()};
    if (run.seed % 2 == 0) platform.setLaunchedBefore();
    std::unique_ptr<Visit> visit;
    // The window is made in the first turn of the loop, and this looks for it in a later one.
    QTimer start;
    QObject::connect(&start, &QTimer::timeout, [&] {
        QMainWindow* const window = mainWindow();
        if (visit || !window || !window->windowHandle() || !window->windowHandle()->isExposed()) return;
        start.stop();
        visit = std::make_unique<Visit>(*window, platform, run);
    });
    start.start(20);
    lumo::runProgram(application, platform);
}
