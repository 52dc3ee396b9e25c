// One line of the device sheet.
#pragma once

#include <QWidget>
#include <string_view>

namespace lumo {

class TextLine;

/// Main thread. The label at the left, dimmed; the value at the right.
class SpecRow final : public QWidget {
    Q_OBJECT

public:
    SpecRow(std::string_view label, std::string_view value, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    TextLine* m_label;
    TextLine* m_value;
};

}  // namespace lumo
