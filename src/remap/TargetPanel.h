// The panel that says which key an action would be bound to, and what it does now.
#pragma once

#include <QWidget>

namespace lumo {

class KeyMiniature;
class TextLine;
struct KeyCap;

/// Main thread.
class TargetPanel final : public QWidget {
    Q_OBJECT

public:
    static int panelHeight();

    explicit TargetPanel(QWidget* parent);

    /// Null asks for one.
    void setTarget(const KeyCap* key);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void place();

    TextLine* m_prompt;
    KeyMiniature* m_cap;
    TextLine* m_heading;
    TextLine* m_name;
    TextLine* m_mapping;
};

}  // namespace lumo
