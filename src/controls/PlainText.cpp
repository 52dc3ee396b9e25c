#include "controls/PlainText.h"

#include <QChar>
#include <QList>

namespace lumo {
namespace {

constexpr char32_t kZeroWidthNonJoiner = 0x200C;
constexpr char32_t kZeroWidthJoiner = 0x200D;

bool isShown(char32_t point) {
    switch (QChar::category(point)) {
        case QChar::Other_Control:
        case QChar::Other_Surrogate:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            return false;
        // The direction marks are among these. The two joiners shape letters and emoji, and turn nothing around.
        case QChar::Other_Format:
            return point == kZeroWidthNonJoiner || point == kZeroWidthJoiner;
        default:
            return true;
    }
}

}  // namespace

QString plainText(std::string_view untrustedUtf8) {
    QString shown;
    qsizetype count = 0;
    const QString text = QString::fromUtf8(untrustedUtf8.data(), static_cast<qsizetype>(untrustedUtf8.size()));
    for (const char32_t point : text.toUcs4()) {
        if (!isShown(point)) continue;
        if (++count > kLongestText) return shown + QChar(0x2026);
        shown += QChar::fromUcs4(point);
    }
    return shown;
}

}  // namespace lumo
