// One permission of the welcome: what it is and what it is good for.
#pragma once

#include <QString>
#include <QWidget>
#include <string_view>

namespace lumo {

class TextBlock;
class TextLine;

/// Main thread.
class PermissionExplainerRow final : public QWidget {
    Q_OBJECT

public:
    static constexpr int kTextX = 50;

    PermissionExplainerRow(QString icon, std::string_view title, std::string_view detail, QWidget* parent);

    /// What it needs within that width.
    [[nodiscard]] int heightWithin(int width) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString m_icon;
    TextLine* m_title;
    TextBlock* m_detail;
};

}  // namespace lumo
