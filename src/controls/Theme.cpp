#include "controls/Theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QScreen>
#include <QStyleFactory>
#include <QToolTip>
#include <cmath>

namespace lumo::theme {
namespace {

QStringList interfaceFamilies(const QStringList& system) {
#ifdef Q_OS_MACOS
    return system;
#else
    return QStringList{"Inter", "Noto Sans", "Cantarell"} + system;
#endif
}

/// What the desktop says about fonts, asked once: apply() is the first to need it, on the main thread.
struct Families {
    QFont general = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    QStringList interface = interfaceFamilies(general.families());
    QStringList monospaced = QStringList{"SF Mono", "Menlo", "DejaVu Sans Mono"} +
                             QFontDatabase::systemFont(QFontDatabase::FixedFont).families();
};

const Families& families() {
    static const Families known;
    return known;
}

QPalette darkPalette() {
    QPalette palette(kText, kPopupControl, kPopupControl.lighter(), kBar, kCard, kText, Qt::white, kWindow, kWindow);
    palette.setColor(QPalette::Highlight, kAccent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, kPopup);
    palette.setColor(QPalette::ToolTipText, kText);
    return palette;
}

/// What was asked for: to say what was found, Qt would have to load the font, which nothing is written in.
double pointsOf(const QFont& font, double dotsPerInch) {
    constexpr double kPointsPerInch = 72.0;
    return font.pixelSize() > 0 ? font.pixelSize() * kPointsPerInch / dotsPerInch : font.pointSizeF();
}

}  // namespace

QFont font(const TextStyle& style, double times) {
    QFont font = families().general;
    font.setFamilies(style.isMonospaced ? families().monospaced : families().interface);
    const double pixels = std::round(style.sizePx() * times);
    font.setPixelSize(static_cast<int>(pixels));
    font.setWeight(style.weight);
    font.setItalic(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.trackingEm * pixels);
    return font;
}

void apply(QApplication&) {
    const double dotsPerInch = QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    setTextScale(textScaleFor(pointsOf(families().general, dotsPerInch), dotsPerInch));
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(darkPalette());
    QApplication::setFont(font(kRowStyle));
    QToolTip::setPalette(darkPalette());
    QToolTip::setFont(font(kFineStyle));
}

}  // namespace lumo::theme
