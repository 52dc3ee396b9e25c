// The time of all animations, which stands still until a test moves it on.
#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QEvent>
#include <QVariantAnimation>

namespace lumo::test {

/// Main thread, one at a time. Animations that begin while it lives run by its clock.
class SteppedMotion final : public QAnimationDriver {
public:
    SteppedMotion() {
        install();
        // Where nothing moves, Qt goes back to the clock on the wall.
        m_endless.setStartValue(0.0);
        m_endless.setEndValue(1.0);
        m_endless.setLoopCount(-1);
        m_endless.start();
        goOn(1);
    }
    SteppedMotion(const SteppedMotion&) = delete;
    SteppedMotion& operator=(const SteppedMotion&) = delete;
    ~SteppedMotion() override { uninstall(); }

    /// In the steps of a display. What was started before begins with the first of them.
    void goOn(qint64 ms) {
        constexpr qint64 kStep = 10;
        for (qint64 passed = 0; passed < ms; passed += kStep) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
            m_now += kStep;
            advanceAnimation();
        }
    }
    [[nodiscard]] qint64 elapsed() const override { return m_now; }

private:
    QVariantAnimation m_endless;
    qint64 m_now = 0;
};

}  // namespace lumo::test
