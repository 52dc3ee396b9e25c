// The part of the window that shows one page.
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

/// Main thread. A page fills the area, and fades in when it takes the place of another.
class PageArea final : public QWidget {
    Q_OBJECT

public:
    explicit PageArea(QWidget* parent);

    /// Owns the page; the one before it goes. Null leaves the area empty.
    void setPage(QWidget* page);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* m_page = nullptr;
    PageVeil* m_veil;
};

}  // namespace lumo
