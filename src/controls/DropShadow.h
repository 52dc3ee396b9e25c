// The shadow that a widget casts on what lies below it.
#pragma once

#include <QWidget>

#include "controls/SoftShadow.h"

namespace lumo {

/// Main thread. Goes wherever its caster goes, below it and above everything below that; presses fall through it.
class DropShadow final : public QWidget {
    Q_OBJECT

public:
    /// A sibling of the caster, which owns it in effect: they have the same parent.
    DropShadow(QWidget& caster, SoftShadow shadow);

    /// A share of its opacity, 0 to 1.
    void setShare(double share);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();

    QWidget& m_caster;
    SoftShadow m_shadow;
    double m_share = 1.0;
};

}  // namespace lumo
