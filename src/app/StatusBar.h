// The foot of the window: what happened last.
#pragma once

#include <QWidget>
#include <string_view>

#include "controls/Accessible.h"

namespace lumo {

class TextLine;

/// Main thread.
class StatusBar final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static constexpr int kHeight = 28;

    explicit StatusBar(QWidget* parent);

    /// Plain text. A screen reader is told when it differs from the last one.
    void setMessage(std::string_view message);

    QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    TextLine* m_message;
};

}  // namespace lumo
