// The modes of the music effect in two columns, one of them selected.
#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

#include "controls/Accessible.h"
#include "controls/FocusGroup.h"

namespace lumo {

class MusicModeTile;

/// Main thread. Filled downwards; the rows share the height.
class MusicModeList final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    explicit MusicModeList(QWidget* parent);

    /// Marks that mode and no other; a number that no mode has marks none.
    void setSelected(std::int64_t id);

    QAccessibleInterface* makeAccessible() override;

signals:
    void chosen(std::int64_t id);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::vector<MusicModeTile*> m_tiles;
    FocusGroup* m_group;
};

}  // namespace lumo
