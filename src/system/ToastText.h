// The two lines of the toast, which can be clicked like a button.
#pragma once

#include "controls/Lettering.h"
#include "controls/PushControl.h"

namespace lumo {

/// Main thread.
class ToastText final : public PushControl {
    Q_OBJECT

public:
    static int textHeight();

    ToastText(QString title, QString detail, QWidget* parent);

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool isElided() const;

    QString m_title;
    QString m_detail;
    Lettering m_titleLettering;
    Lettering m_detailLettering;
};

}  // namespace lumo
