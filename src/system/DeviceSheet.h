// The card with the device's fixed data.
#pragma once

#include <QWidget>
#include <vector>

namespace lumo {

class Section;
class SpecRow;

/// Main thread.
class DeviceSheet final : public QWidget {
    Q_OBJECT

public:
    explicit DeviceSheet(QWidget* parent);

    [[nodiscard]] int leastHeight() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Section* m_section;
    std::vector<SpecRow*> m_rows;
};

}  // namespace lumo
