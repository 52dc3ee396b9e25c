// The card with the ways in which a macro is repeated.
#pragma once

#include <cstdint>
#include <vector>

#include "controls/HeadedCard.h"

namespace lumo {

class FocusGroup;
class LoopRadio;

/// Main thread. The three ways have the numbers 0, 1 and 2.
class LoopModesCard final : public HeadedCard {
    Q_OBJECT

public:
    explicit LoopModesCard(QWidget* parent);

    /// How often the first way repeats.
    void setLoopCount(std::int64_t count);
    /// A number that none of them has selects none.
    void setMode(std::int64_t mode);

    /// What it needs on a page that is short, or is not.
    [[nodiscard]] static int heightOn(bool isShortPage);

signals:
    void chosen(std::int64_t mode);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeRadios();

    FocusGroup* m_group;
    std::vector<LoopRadio*> m_radios;
};

}  // namespace lumo
