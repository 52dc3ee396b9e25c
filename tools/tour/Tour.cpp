#include "Tour.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>
#include <cstdio>
#include <utility>

namespace lumo::tour {
namespace {

constexpr int kLookMs = 20;
constexpr qint64 kPatienceMs = 20000;
constexpr qint64 kLongestFadeMs = 400;

}  // namespace

Tour::Tour(QWidget& window, QString folder) : m_window(window), m_folder(std::move(folder)) {
    QObject::connect(&m_look, &QTimer::timeout, [this] { look(); });
}

void Tour::then(QString what, std::function<void()> act, std::function<bool()> isSeen) {
    m_steps.push_back({std::move(what), std::move(act), std::move(isSeen)});
}

void Tour::picture(const QString& fileName) {
    then(
        "waiting for the window to rest", [] {}, [this] { return m_sinceBegin.elapsed() >= kLongestFadeMs; });
    then(
        "taking " + fileName, [this, fileName] { save(fileName); }, [] { return true; });
}

void Tour::begin() {
    m_look.start(kLookMs);
    beginStep();
}

void Tour::beginStep() {
    if (m_steps.empty()) return QCoreApplication::exit(EXIT_SUCCESS);
    m_sinceBegin.start();
    m_steps.front().act();
}

void Tour::look() {
    if (m_steps.empty()) return;
    if (m_steps.front().isSeen()) {
        m_steps.pop_front();
        return beginStep();
    }
    if (m_sinceBegin.elapsed() > kPatienceMs) giveUp(m_steps.front().what);
}

void Tour::save(const QString& fileName) {
    const QString path = m_folder + '/' + fileName;
    if (!m_window.grab().save(path, "PNG")) return giveUp("the picture could not be written: " + path);
    std::printf("%s\n", qUtf8Printable(path));
    std::fflush(stdout);
}

void Tour::giveUp(const QString& why) {
    std::fprintf(stderr, "The tour gives up: %s.\n", qUtf8Printable(why));
    m_steps.clear();
    QCoreApplication::exit(EXIT_FAILURE);
}

}  // namespace lumo::tour
