// A few lines of plain text, broken between words.
#pragma once

#include <QStringList>
#include <QWidget>
#include <string_view>

#include "controls/Accessible.h"
#include "controls/Lettering.h"

namespace lumo {

/// Main thread. The lines are centred in the height; what does not fit is elided at the end of the last line, and then
/// told as hover help. A press on it goes to what lies behind.
class TextBlock final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    TextBlock(const theme::TextStyle& style, const QColor& color, int mostLines, QWidget* parent);

    /// Untrusted UTF-8.
    void setText(std::string_view text);
    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] const QStringList& lines() const { return m_lines; }
    [[nodiscard]] bool isElided() const { return m_isElided; }

    QAccessibleInterface* makeAccessible() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void breakLines();

    Lettering m_lettering;
    QColor m_color;
    int m_linePx;
    int m_mostLines;
    QString m_text;
    QStringList m_lines;
    bool m_isElided = false;
};

}  // namespace lumo
