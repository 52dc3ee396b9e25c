// The card that says the microphone is not allowed.
#pragma once

#include <QWidget>

namespace lumo {

class PushButton;
class PushControl;
class TextBlock;

/// Main thread.
class MicrophoneNotice final : public QWidget {
    Q_OBJECT

public:
    explicit MicrophoneNotice(QWidget* parent);

    /// What its text needs within that width.
    [[nodiscard]] int heightWithin(int width) const;
    [[nodiscard]] PushControl& button() const;

signals:
    void grantAccess();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int buttonWidth() const;
    [[nodiscard]] int textWidthWithin(int width) const;

    TextBlock* m_text;
    PushButton* m_grant;
};

}  // namespace lumo
