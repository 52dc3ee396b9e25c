// A small label of the status bar with a light that says whether a feature is allowed.
#pragma once

#include <QWidget>
#include <string_view>

namespace lumo {

class StateDot;
class TextLine;

/// Main thread.
class StatusChip final : public QWidget {
    Q_OBJECT

public:
    StatusChip(std::string_view label, QWidget* parent);

    void setGranted(bool isGranted);
    [[nodiscard]] bool isGranted() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    StateDot* m_dot;
    TextLine* m_label;
};

}  // namespace lumo
