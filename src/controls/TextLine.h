// One line of plain text: elided when it is too long, told in full to everybody who asks.
#pragma once

#include <QWidget>
#include <optional>
#include <string_view>

#include "controls/Accessible.h"
#include "controls/Lettering.h"

namespace lumo {

/// Main thread. A press on it goes to what lies behind.
class TextLine final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    TextLine(const theme::TextStyle& style, const QColor& color, QWidget* parent);

    /// Untrusted UTF-8. True when it differs from what is shown.
    bool setText(std::string_view text);
    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] bool isElided() const { return typeset(shown()) != typeset(m_text); }

    /// What the whole text takes.
    [[nodiscard]] QSize sizeHint() const override;

    /// What the text takes when it may take no more than that.
    [[nodiscard]] int widthWithin(int limit) const;

    QAccessibleInterface* makeAccessible() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] const QString& shown() const;
    [[nodiscard]] QString elided(int width) const;
    [[nodiscard]] int widthOf(const QString& text) const;

    Lettering m_lettering;
    QColor m_color;
    int m_linePx;
    QString m_text;
    mutable std::optional<QString> m_shown;  // none until somebody looks: before that it has no width of its own
};

/// Hover help that takes the text as it is, also when it looks like mark-up. Empty text takes the help away.
void showPlainToolTip(QPoint globalPosition, const QString& text, QWidget* widget);

}  // namespace lumo
