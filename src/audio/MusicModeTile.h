// One mode of the music effect.
#pragma once

#include "audio/MusicModes.h"
#include "controls/PushControl.h"

namespace lumo {

/// Main thread.
class MusicModeTile final : public PushControl {
    Q_OBJECT

public:
    MusicModeTile(const MusicMode& mode, QWidget* parent);

    [[nodiscard]] std::int64_t id() const { return m_id; }
    [[nodiscard]] bool isElided() const;

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRectF nameRect() const;

    std::int64_t m_id;
};

}  // namespace lumo
