// Tells when a program that knows nothing of it has painted its window for the first time.
#pragma once

#include <QObject>
#include <QString>

namespace lumo::bench {

/// Lives on the main thread.
class FirstPaint final : public QObject {
public:
    /// Writes the monotonic clock, in nanoseconds, to that file: in the turn of the event loop after the first
    /// painting, when the picture has left for the screen.
    /// Without a path it ends the process instead, for whoever counts what a start costs.
    explicit FirstPaint(QString path);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void write();

    QString m_path;
};

}  // namespace lumo::bench
