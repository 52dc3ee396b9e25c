// The pill that says whether something is granted.
#pragma once

#include <QWidget>

namespace lumo {

class TextLine;

/// Main thread.
class StatusBadge final : public QWidget {
    Q_OBJECT

public:
    explicit StatusBadge(QWidget* parent);

    void setGranted(bool isGranted);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] TextLine& shown() const;

    TextLine* m_granted;
    TextLine* m_missing;
    bool m_isGranted = false;
};

}  // namespace lumo
