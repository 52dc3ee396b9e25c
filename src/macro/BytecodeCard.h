// The card with the compiled byte code.
#pragma once

#include <string_view>

#include "controls/HeadedCard.h"

namespace lumo {

class BytecodeView;
class PushButton;

/// Main thread.
class BytecodeCard final : public HeadedCard {
    Q_OBJECT

public:
    explicit BytecodeCard(QWidget* parent);

    void setBytecode(std::string_view text);
    /// Whether its page is short.
    void setShort(bool isShort);
    [[nodiscard]] static int leastHeight();

signals:
    void recompiled();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    bool m_isShort = false;
    PushButton* m_recompile;
    BytecodeView* m_view;
};

}  // namespace lumo
