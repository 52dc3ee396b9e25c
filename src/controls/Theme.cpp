#include "controls/Theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

namespace lumo::theme {
namespace {

QStringList interfaceFamilies() {
    const QStringList system = QFontDatabase::systemFont(QFontDatabase::GeneralFont).families();
#ifdef Q_OS_MACOS
    return system;
#else
    return QStringList{"Inter", "Noto Sans", "Cantarell"} + system;
#endif
}

QStringList monospacedFamilies() {
    return QStringList{"SF Mono", "Menlo", "DejaVu Sans Mono"} +
           QFontDatabase::systemFont(QFontDatabase::FixedFont).families();
}

QPalette darkPalette() {
    QPalette palette(kText, kPopupControl, kPopupControl.lighter(), kBar, kCard, kText, Qt::white, kWindow, kWindow);
    palette.setColor(QPalette::Highlight, kAccent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, kPopup);
    palette.setColor(QPalette::ToolTipText, kText);
    return palette;
}

}  // namespace

QFont font(const TextStyle& style) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setFamilies(style.isMonospaced ? monospacedFamilies() : interfaceFamilies());
    font.setPixelSize(static_cast<int>(style.sizePx));
    font.setWeight(style.weight);
    font.setItalic(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.trackingEm * style.sizePx);
    return font;
}

void apply(QApplication&) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(darkPalette());
    QApplication::setFont(font(kRowStyle));
    QToolTip::setPalette(darkPalette());
    QToolTip::setFont(font(kFineStyle));
}

}  // namespace lumo::theme
