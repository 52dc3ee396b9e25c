// A button that shows a symbol and says in words what it does.
#pragma once

#include "controls/PushButton.h"

namespace lumo {

namespace look {

extern const ButtonSkin kGhost;  // has no surface until the pointer is over it
extern const ButtonSkin kFilled;

}  // namespace look

/// Main thread.
class IconButton final : public PushControl {
    Q_OBJECT

public:
    static constexpr int kSize = 28;
    static constexpr int kSmallSize = 24;

    /// `name` is what assistive technology reads and hover help shows; the symbol's frame has that many points. The
    /// skin outlives the button.
    IconButton(const QString& name, QString symbol, double symbolSize, QWidget* parent,
               const ButtonSkin& skin = look::kGhost);

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override { return text(); }
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] double radius() const;

    const ButtonSkin& m_skin;
    QString m_symbol;
    double m_symbolSize;
};

}  // namespace lumo
