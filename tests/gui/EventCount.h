// How often something happens to an object.
#pragma once

#include <QEvent>
#include <QObject>

namespace lumo::test {

/// Counts the events of a kind that arrive at an object.
class EventCount final : public QObject {
public:
    EventCount(QObject& watched, QEvent::Type type) : m_type(type) { watched.installEventFilter(this); }
    [[nodiscard]] int count() const { return m_count; }
    void forget() { m_count = 0; }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == m_type) ++m_count;
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

}  // namespace lumo::test
