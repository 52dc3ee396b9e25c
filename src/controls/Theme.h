// The looks in one place: colours, type, radii and times, and how they reach Qt's own tool tips and menus.
#pragma once

#include <QColor>
#include <QFont>
#include <cmath>

#include "controls/TextScale.h"

class QApplication;

namespace lumo::theme {

/// White at that opacity.
[[nodiscard]] constexpr QColor whitePerMille(int perMille) { return {255, 255, 255, (255 * perMille + 500) / 1000}; }
[[nodiscard]] constexpr QColor white(int percent) { return whitePerMille(10 * percent); }

// Surfaces
inline constexpr QColor kWindow{0x1A, 0x1A, 0x1A};
inline constexpr QColor kBar{0x17, 0x17, 0x17};
inline constexpr QColor kCard{0x21, 0x21, 0x23};
inline constexpr QColor kPopup{0x25, 0x25, 0x28};
inline constexpr QColor kPopupControl{0x3A, 0x3A, 0x3E};
inline constexpr QColor kPopupControlHover{0x44, 0x44, 0x4A};
inline constexpr QColor kPopupControlPressed{0x34, 0x34, 0x38};
inline constexpr QColor kPopupInset{0x1B, 0x1B, 0x1D};
inline constexpr QColor kToast{0x29, 0x29, 0x2C};
inline constexpr QColor kBackdrop{0, 0, 0, 148};
inline constexpr QColor kChip = white(4);
inline constexpr QColor kControl{0x2E, 0x2E, 0x31};
inline constexpr QColor kControlHover{0x38, 0x38, 0x3C};
inline constexpr QColor kControlPressed{0x28, 0x28, 0x2B};
inline constexpr QColor kTile{0x28, 0x28, 0x2B};
inline constexpr QColor kTileHover{0x32, 0x32, 0x36};
inline constexpr QColor kTilePressed{0x24, 0x24, 0x27};
inline constexpr QColor kInset{0x15, 0x15, 0x17};
inline constexpr QColor kRowHover = white(6);
inline constexpr QColor kRowPressed = white(3);
inline constexpr QColor kStepHover = white(5);

// Lines, 1 point wide
inline constexpr QColor kCardLine = white(6);
inline constexpr QColor kHeaderLine = white(8);
inline constexpr QColor kStatusLine = white(7);
inline constexpr QColor kControlLine = white(8);
inline constexpr QColor kTileLine = white(6);
inline constexpr QColor kTileLineHover = white(13);
inline constexpr QColor kPrimaryLine = white(14);
inline constexpr QColor kToolsLine = white(7);
inline constexpr QColor kRowLine = white(5);
inline constexpr QColor kTimelineLine = white(6);
inline constexpr QColor kHeaderSeparator = white(9);
inline constexpr QColor kStatusSeparator = white(12);
inline constexpr QColor kPopupLine = white(10);
inline constexpr QColor kToastLine = white(11);
inline constexpr QColor kExplainerLine = white(6);
inline constexpr QColor kSelectedLine{0x8B, 0x5C, 0xFF, 140};

// Accent. The violet itself is too dark to be a line or a letter.
inline constexpr QColor kAccent{87, 8, 212};
inline constexpr QColor kAccentHover{0x68, 0x1C, 0xE6};
inline constexpr QColor kAccentPressed{0x47, 0x06, 0xAE};
inline constexpr QColor kAccentLine{0x8B, 0x5C, 0xFF};
inline constexpr QColor kAccentSoft{122, 69, 240, 56};
inline constexpr QColor kAccentPale{0xD9, 0xCC, 0xFF};
inline constexpr QColor kFocus{0xA8, 0x88, 0xFF};

// Meaning
inline constexpr QColor kOk{0x3D, 0xD6, 0x6E};
inline constexpr QColor kWarn{0xFF, 0x9F, 0x3A};
inline constexpr QColor kTextWarn{0xFF, 0xA6, 0x4A};
inline constexpr QColor kNoticeFill{0xFF, 0x9F, 0x3A, 20};
inline constexpr QColor kNoticeLine{0xFF, 0x9F, 0x3A, 46};
inline constexpr QColor kOkFill{0x3D, 0xD6, 0x6E, 33};
inline constexpr QColor kTextOk{0x4A, 0xDB, 0x7A};
inline constexpr QColor kWarnFill{0xFF, 0x9F, 0x3A, 36};
inline constexpr QColor kAccentSymbol{0xA8, 0x88, 0xFF};
inline constexpr QColor kTextDanger{0xFF, 0x90, 0x88};
inline constexpr QColor kDangerFill{0xFF, 0x6B, 0x61, 31};

// Text
inline constexpr QColor kText{0xF2, 0xF2, 0xF4};
inline constexpr QColor kTextRow{0xD8, 0xD8, 0xDC};
inline constexpr QColor kTextRowPressed{0xC4, 0xC4, 0xC8};
inline constexpr QColor kTextRowSelected{0xFF, 0xFF, 0xFF};
inline constexpr QColor kTextButton{0xED, 0xED, 0xF0};
inline constexpr QColor kTextTile{0xDE, 0xDE, 0xE2};
inline constexpr QColor kTextNav = white(65);
inline constexpr QColor kTextProfile{0x99, 0x99, 0x99};
inline constexpr QColor kTextBody{0xB0, 0xB0, 0xB6};
inline constexpr QColor kTextInfo{0xC9, 0xC9, 0xCE};
inline constexpr QColor kTextMinor{0x98, 0x98, 0x9E};
inline constexpr QColor kTextHexZero{0x8A, 0x8A, 0x90};
inline constexpr QColor kTextFixed = white(50);
inline constexpr QColor kTextSection = white(60);
inline constexpr QColor kTextLink = white(75);
inline constexpr QColor kTextStatus{0xD2, 0xD2, 0xD6};
inline constexpr QColor kTextAccent{0xB9, 0xA3, 0xFF};
inline constexpr QColor kTextPopup = white(80);
inline constexpr QColor kTextExplainer = white(70);
inline constexpr QColor kTextNotice{0xD6, 0xD6, 0xDA};

/// Sizes are the design's: what letters and lines take is more where the desktop wants larger ones.
struct TextStyle {
    double designedPx = 12.0;
    int designedLinePx = 16;
    QFont::Weight weight = QFont::Normal;
    double trackingEm = 0.0;
    bool isTabular = false;     // figures of equal width
    bool isMonospaced = false;  // all letters of equal width
    bool isInPicture = false;   // and stays as large as the picture is

    [[nodiscard]] double scale() const { return isInPicture ? 1.0 : textScale(); }
    [[nodiscard]] double sizePx() const { return designedPx * scale(); }
    [[nodiscard]] int linePx() const { return static_cast<int>(std::lround(designedLinePx * scale())); }
};
inline constexpr TextStyle kBrandStyle{13, 16, QFont::DemiBold, 0.09};
inline constexpr TextStyle kSectionStyle{11, 16, QFont::DemiBold, 0.06};
inline constexpr TextStyle kLayerLabelStyle{11, 13, QFont::DemiBold, 0.06};
inline constexpr TextStyle kPresetLabelStyle{11, 13, QFont::DemiBold, 0.02};
inline constexpr TextStyle kRowStyle{12, 16, QFont::Normal};
inline constexpr TextStyle kRowSelectedStyle{12, 16, QFont::Medium};
inline constexpr TextStyle kLargeRowStyle{12.5, 16, QFont::Normal};
inline constexpr TextStyle kLargeRowSelectedStyle{12.5, 16, QFont::Medium};
inline constexpr TextStyle kTileStyle{12, 14, QFont::Medium};
inline constexpr TextStyle kKeyButtonStyle{13, 16, QFont::Medium};
inline constexpr TextStyle kMacroNameStyle{12, 16, QFont::DemiBold};
inline constexpr TextStyle kRadioStyle{12.5, 16, QFont::Normal};
inline constexpr TextStyle kNavStyle{13, 16, QFont::Medium};
inline constexpr TextStyle kButtonStyle{12, 16, QFont::Medium};
inline constexpr TextStyle kSmallButtonStyle{11.5, 16, QFont::Medium};
inline constexpr TextStyle kBadgeStyle{10.5, 16, QFont::DemiBold};
inline constexpr TextStyle kPermissionsHeadingStyle{11, 24, QFont::DemiBold, 0.045};
inline constexpr TextStyle kStrongStyle{12.5, 16, QFont::DemiBold};
inline constexpr TextStyle kNoticeHeadingStyle{12, 16, QFont::DemiBold};
inline constexpr TextStyle kSheetLabelStyle{11.5, 16, QFont::Normal};
inline constexpr TextStyle kSheetValueStyle{11.2, 16, QFont::Normal};
inline constexpr TextStyle kTuningLabelStyle{12.5, 16, QFont::Normal};
inline constexpr TextStyle kValueStyle{12, 16, QFont::Medium, 0.0, true};
inline constexpr TextStyle kUnitStyle{11, 16, QFont::Normal};
inline constexpr TextStyle kStepNumberStyle{11, 16, QFont::Normal, 0.0, true};
inline constexpr TextStyle kDelayStyle{12, 16, QFont::Normal, 0.0, true};
inline constexpr TextStyle kCodeStyle{11.5, 16, QFont::Normal, 0.0, false, true};
inline constexpr TextStyle kHexStyle{10.3, 17, QFont::Normal, 0.0, false, true};
inline constexpr TextStyle kShortHexStyle{10.3, 14, QFont::Normal, 0.0, false, true};
inline constexpr TextStyle kDescriptionStyle{11.5, 16, QFont::Normal};
inline constexpr TextStyle kStreamLineStyle{11.5, 15, QFont::Normal};
inline constexpr TextStyle kStreamingStyle{12, 16, QFont::DemiBold};
inline constexpr TextStyle kBandStyle{10, 12, QFont::Normal, 0.0, true};
inline constexpr TextStyle kLinkStyle{12, 16, QFont::Normal};
inline constexpr TextStyle kMenuStyle{12, 16, QFont::Medium};
inline constexpr TextStyle kFineStyle{11, 14, QFont::Normal};
inline constexpr TextStyle kTargetStyle{13, 18, QFont::DemiBold};
inline constexpr TextStyle kTargetPromptStyle{13, 18, QFont::Normal};
inline constexpr TextStyle kPopupTitleStyle{20, 26, QFont::DemiBold, -0.015};
inline constexpr TextStyle kPopupTextStyle{13, 19, QFont::Normal};
inline constexpr TextStyle kPopupButtonStyle{13, 16, QFont::Medium};
inline constexpr TextStyle kExplainerTitleStyle{13, 18, QFont::DemiBold};
inline constexpr TextStyle kExplainerStyle{12, 17, QFont::Normal};
inline constexpr TextStyle kNoticeStyle{12, 18, QFont::Normal};
inline constexpr TextStyle kToastTitleStyle{12.5, 18, QFont::DemiBold};

/// The interface font in that style, so many times as large, its size rounded to whole pixels, unhinted so that letters
/// stand where they belong and not on whole pixels.
[[nodiscard]] QFont font(const TextStyle& style, double times = 1.0);

inline constexpr double kPopupRadius = 16.0;
inline constexpr double kCardRadius = 12.0;
inline constexpr double kPopupButtonRadius = 9.0;
inline constexpr double kBoxRadius = 10.0;
inline constexpr double kSwatchRadius = 8.0;
inline constexpr double kRowRadius = 7.0;
inline constexpr double kButtonRadius = 7.0;
inline constexpr double kSmallRadius = 6.0;
inline constexpr double kChipRadius = 5.0;

inline constexpr int kWindowMargin = 16;
inline constexpr int kCardGap = 12;
inline constexpr int kCardPadding = 12;
inline constexpr int kHeadingToContent = 8;

/// In the smallest window. A page that gets less scrolls.
inline constexpr int kShortestPage = 300;

/// Whether a page that high uses its short measures, as in the smallest window.
[[nodiscard]] inline bool isShort(int pageHeight) {
    constexpr int kLines = 16;
    return pageHeight < grown(330, kLines);
}

inline constexpr int kHoverInMs = 90;
inline constexpr int kHoverOutMs = 140;
inline constexpr int kPressOutMs = 120;
inline constexpr int kSelectMs = 160;
inline constexpr int kKeyDownMs = 60;
inline constexpr int kKeyUpMs = 110;
inline constexpr int kPageMs = 120;
inline constexpr int kReducedMs = 80;
inline constexpr int kBackdropInMs = 160;
inline constexpr int kPromptInMs = 200;
inline constexpr int kPromptOutMs = 140;

/// Before the first window: keeps the desktop's own style out of ours. Main thread.
void apply(QApplication& application);

}  // namespace lumo::theme
