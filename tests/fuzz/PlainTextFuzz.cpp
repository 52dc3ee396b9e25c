// Whatever a device calls itself, what is shown of it is short, well formed, and turns nothing around.
#include <QList>
#include <QString>

#include "TemporaryFolder.h"
#include "controls/PlainText.h"

namespace {

using lumo::fuzz::expect;

bool isHarmless(char32_t point) {
    const bool isControl = point < 0x20 || (point >= 0x7F && point < 0xA0);
    const bool turnsDirection = point == 0x061C || point == 0x200E || point == 0x200F ||
                                (point >= 0x202A && point <= 0x202E) || (point >= 0x2066 && point <= 0x2069);
    const bool breaksLine = point == 0x2028 || point == 0x2029;
    const bool isHalf = point >= 0xD800 && point < 0xE000;
    return !isControl && !turnsDirection && !breaksLine && !isHalf && point <= 0x10FFFF;
}

bool isPrintableAscii(std::string_view text) {
    for (const char each : text) {
        if (each < 0x20 || each > 0x7E) return false;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = lumo::fuzz::textOf(data, size);
    const QString shown = lumo::plainText(text);
    const auto points = shown.toUcs4();
    expect(points.size() <= lumo::kLongestText + 1);  // the ellipsis is the one more
    for (const char32_t point : points) expect(isHarmless(point));
    if (size <= lumo::kLongestText && isPrintableAscii(text)) expect(shown.toStdString() == text);
    const QByteArray again = shown.toUtf8();
    if (points.size() <= lumo::kLongestText) {
        expect(lumo::plainText({again.constData(), static_cast<std::size_t>(again.size())}) == shown);
    }
    return 0;
}
