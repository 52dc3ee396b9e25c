// One key as the on-screen keyboard shows it, alone on a card.
#pragma once

#include <QImage>
#include <QWidget>

#include "keyboard/DeviceGrid.h"
#include "keyboard/KeyCap.h"

namespace lumo {

/// Main thread. The cap stands in the middle, with room for its shadow.
class KeyMiniature final : public QWidget {
    Q_OBJECT

public:
    explicit KeyMiniature(QWidget* parent);

    /// Lit in its own colour. Keys that are too wide are drawn narrower.
    void setKey(const KeyCap& key);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QImage draw() const;

    KeyCap m_key;  // at its place here
    DeviceGrid m_grid;
    QImage m_image;  // for that grid; null when it is to be drawn anew
};

}  // namespace lumo
