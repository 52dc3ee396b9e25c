// What a page comes out of when it takes the place of another.
#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace lumo {

/// Lies over a new page in the window's colour and lifts. Main thread.
class PageVeil final : public QWidget {
    Q_OBJECT

public:
    explicit PageVeil(QWidget* parent);

    void lift();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVariantAnimation m_thickness;
};

}  // namespace lumo
