// The byte code as text that can be selected and copied.
#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>
#include <algorithm>
#include <optional>

#include "controls/Accessible.h"
#include "controls/FocusRing.h"
#include "controls/Lettering.h"

namespace lumo {

/// Main thread. Shows exactly the text it is given, in letters of equal width; only colours tell the bytes that say
/// something from those that do not. Selected with the pointer, with Shift and the arrow keys, or as a whole.
class BytecodeView final : public QWidget, public AccessibleSource, public RingWearer {
    Q_OBJECT

public:
    explicit BytecodeView(QWidget* parent);

    /// Lines of one length. Another text takes the selection away.
    void setBytecode(const QString& text);
    void setLineHeight(int height);
    [[nodiscard]] QString selectedText() const;

    [[nodiscard]] std::optional<RingShape> ring() const override;
    QAccessibleInterface* makeAccessible() override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Letters, line ends counted in.
    struct Span {
        int anchor = 0;
        int head = 0;
        [[nodiscard]] int begin() const { return std::min(anchor, head); }
        [[nodiscard]] int end() const { return std::max(anchor, head); }
        bool operator==(const Span&) const = default;
    };
    using Coloring = QColor (*)(const QString& word);

    [[nodiscard]] int lineLength() const;
    [[nodiscard]] QPointF textOrigin() const;
    [[nodiscard]] int positionAt(const QPointF& place) const;
    void select(int anchor, int head);
    void copy() const;
    void paintLine(QPainter& painter, int line, Coloring colorOf) const;
    void paintSelection(QPainter& painter, int line) const;

    Lettering m_lettering;
    double m_letterWidth;
    int m_lineHeight;
    QString m_text;
    QStringList m_lines;
    Span m_selection;
    bool m_hasKeyboardFocus = false;
};

}  // namespace lumo
