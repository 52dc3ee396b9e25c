// A few lines of plain text, broken between words.
#pragma once

#include <QStringList>
#include <QWidget>
#include <optional>
#include <string_view>

#include "controls/Accessible.h"
#include "controls/Lettering.h"

namespace lumo {

/// Main thread. The lines begin at the left, and are centred in the height; what does not fit is elided at the end of
/// the last line, and then told as hover help. A press on it goes to what lies behind.
class TextBlock final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    TextBlock(const theme::TextStyle& style, const QColor& color, int mostLines, QWidget* parent);

    /// Untrusted UTF-8.
    void setText(std::string_view text);
    /// Each line in the middle of the width instead.
    void centreLines();
    /// What the lines take within that width.
    [[nodiscard]] int heightWithin(int width) const;
    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] const QStringList& lines() const { return shown().lines; }
    [[nodiscard]] bool isElided() const { return shown().isElided; }

    QAccessibleInterface* makeAccessible() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Broken {
        QStringList lines;
        bool isElided = false;
    };
    [[nodiscard]] Broken broken(int width) const;
    [[nodiscard]] const Broken& shown() const;

    Lettering m_lettering;
    QColor m_color;
    int m_linePx;
    int m_mostLines;
    QString m_text;
    mutable std::optional<Broken> m_shown;  // none until somebody looks: before that it has no width of its own
    bool m_isCentred = false;
};

}  // namespace lumo
