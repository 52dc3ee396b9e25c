// A part of a page: a rounded surface with one section.
#pragma once

#include <QWidget>

namespace lumo {

class Section;

/// Main thread. Owns the section, which it gives its whole width inside the padding, and as much of its height as the
/// section says it needs.
class Card final : public QWidget {
    Q_OBJECT

public:
    Card(Section* section, QWidget* parent);

    [[nodiscard]] int leastHeight() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Section* m_section;
};

}  // namespace lumo
