// A button with a text and perhaps a symbol, in one of the looks of our buttons and pills.
#pragma once

#include <QColor>
#include <QImage>

#include "controls/Lettering.h"
#include "controls/PushControl.h"
#include "controls/Theme.h"

namespace lumo {

/// A colour at rest, below the pointer and pressed.
struct PressColors {
    QColor rest;
    QColor hover;
    QColor pressed;

    /// `hover` and `press` are shares from 0 to 1.
    [[nodiscard]] QColor at(double hoverShare, double pressShare) const {
        return mix(mix(rest, hover, hoverShare), pressed, pressShare);
    }
};

struct ButtonSkin {
    PressColors fill;
    PressColors text;
    QColor line;
};

struct ButtonLook {
    ButtonSkin skin;
    ButtonSkin selected;
    theme::TextStyle type = theme::kButtonStyle;
    double radius = theme::kButtonRadius;
};

namespace look {

extern const ButtonLook kPlain;
extern const ButtonLook kSmall;
extern const ButtonLook kRecord;  // selected while it records
extern const ButtonLook kPrimary;
extern const ButtonLook kLayer;
extern const ButtonLook kProfile;
extern const ButtonLook kAction;
extern const ButtonLook kPopupPrimary;
extern const ButtonLook kPopupSecondary;
extern const ButtonLook kDanger;
extern const ButtonLook kSmallPrimary;
extern const ButtonLook kSmallQuiet;

}  // namespace look

/// Main thread. The text is centred together with the symbol, and elided on the right where it does not fit.
class PushButton : public PushControl {
    Q_OBJECT

public:
    /// The look outlives the button. `role`: RadioButton where one of several is the chosen one.
    PushButton(const QString& text, const ButtonLook& look, QWidget* parent,
               QAccessible::Role role = QAccessible::PushButton);

    /// In the text's colour, in a frame of that many points.
    void setSymbol(const QString& name, double size = kSymbolSize);
    /// In its own colours, in the place of a symbol of the usual size; null for none.
    void setPicture(const QImage& picture);
    /// For a text that changes; it is the name, too.
    void setLabel(const QString& text);

    /// With that much room left and right of the text.
    [[nodiscard]] int widthWith(int padding) const;
    /// With the least room; the height is as it is.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    static constexpr double kSymbolSize = 16.0;

    [[nodiscard]] double symbolRoom() const;
    void paintMark(QPainter& painter, const QRectF& frame) const;
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] QColor blended(const PressColors& plain, const PressColors& selected) const;
    void paintLabel(QPainter& painter) const;

    const ButtonLook& m_look;
    Lettering m_lettering;
    QString m_symbol;
    double m_symbolSize = kSymbolSize;
    QImage m_picture;
};

}  // namespace lumo
