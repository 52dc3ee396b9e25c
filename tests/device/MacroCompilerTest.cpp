// How steps become the keyboard's macro image.
#include <gmock/gmock.h>

#include <limits>

#include "device/VexaProtocol.h"
#include "macro/Steps.h"

namespace lumo {
namespace {

using test::press;
using test::release;
using Bytes = std::vector<int>;

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();

/// What stands behind the two bytes at the front, `count` bytes of it.
Bytes records(const std::vector<MacroEvent>& events, std::ptrdiff_t count) {
    const MacroImage image = VexaProtocol::compileMacro(events);
    return {image.begin() + 2, image.begin() + 2 + count};
}

/// The one record of that step, and the zeros behind it up to eight bytes.
Bytes record(const MacroEvent& event) { return records({event}, 8); }

std::vector<MacroEvent> presses(std::size_t count, std::int64_t delayMs) {
    std::vector<MacroEvent> events;
    for (std::size_t i = 0; i < count; ++i) events.push_back(press(0x41, delayMs));
    return events;
}

void expectZerosFrom(const MacroImage& image, std::size_t first) {
    for (std::size_t at = first; at < image.size(); ++at) EXPECT_EQ(image[at], 0) << at;
}

TEST(MacroCompiler, NoStepsAreTwoBytesAndZeros) {
    const MacroImage image = VexaProtocol::compileMacro({});
    EXPECT_EQ(image.size(), 128U);
    EXPECT_EQ(image[0], 0x00);
    EXPECT_EQ(image[1], 0x01);
    expectZerosFrom(image, 2);
}

TEST(MacroCompiler, APressSetsTheHighestBitAndAReleaseDoesNot) {
    EXPECT_EQ(record(press(87, 25)), (Bytes{0x99, 0x57, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(record(release(87, 25)), (Bytes{0x19, 0x57, 0, 0, 0, 0, 0, 0}));
}

TEST(MacroCompiler, DelaysBelowThreeCountAsThree) {
    for (const std::int64_t delayMs : {kLeast, std::int64_t{-200}, std::int64_t{-1}, std::int64_t{0}, std::int64_t{1},
                                       std::int64_t{2}, std::int64_t{3}}) {
        EXPECT_EQ(record(press(87, delayMs)), (Bytes{0x83, 0x57, 0, 0, 0, 0, 0, 0})) << delayMs;
        EXPECT_EQ(record(release(87, delayMs)), (Bytes{0x03, 0x57, 0, 0, 0, 0, 0, 0})) << delayMs;
    }
}

TEST(MacroCompiler, DelaysFrom3To127AreExact) {
    EXPECT_EQ(record(release(1, 4)), (Bytes{0x04, 0x01, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(record(release(1, 100)), (Bytes{0x64, 0x01, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(record(release(1, 127)), (Bytes{0x7F, 0x01, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(record(press(1, 127)), (Bytes{0xFF, 0x01, 0, 0, 0, 0, 0, 0}));
}

TEST(MacroCompiler, LongerDelaysAreHundredsAndARest) {
    EXPECT_EQ(record(press(87, 128)), (Bytes{0x9C, 0x57, 0x00, 0x03, 0x00, 0x01, 0, 0}));
    EXPECT_EQ(record(release(87, 199)), (Bytes{0x63, 0x57, 0x00, 0x03, 0x00, 0x01, 0, 0}));
    EXPECT_EQ(record(release(87, 304)), (Bytes{0x04, 0x57, 0x00, 0x03, 0x00, 0x03, 0, 0}));
    EXPECT_EQ(record(press(87, 25'699)), (Bytes{0xE3, 0x57, 0x00, 0x03, 0x01, 0x00, 0, 0}));
}

TEST(MacroCompiler, ARestBelowFourCountsAsThree) {
    EXPECT_EQ(record(press(87, 200)), (Bytes{0x83, 0x57, 0x00, 0x03, 0x00, 0x02, 0, 0}));
    EXPECT_EQ(record(press(87, 300)), (Bytes{0x83, 0x57, 0x00, 0x03, 0x00, 0x03, 0, 0}));
    EXPECT_EQ(record(release(87, 303)), (Bytes{0x03, 0x57, 0x00, 0x03, 0x00, 0x03, 0, 0}));
    EXPECT_EQ(record(press(87, 1000)), (Bytes{0x83, 0x57, 0x00, 0x03, 0x00, 0x0A, 0, 0}));
}

TEST(MacroCompiler, HundredsAreCutToSixteenBits) {
    EXPECT_EQ(record(press(87, 6'553'550)), (Bytes{0xB2, 0x57, 0x00, 0x03, 0xFF, 0xFF, 0, 0}));
    EXPECT_EQ(record(press(87, 6'553'650)), (Bytes{0xB2, 0x57, 0x00, 0x03, 0x00, 0x00, 0, 0}));
    // 92233720368547758 hundreds and 7; the hundreds end in 0x7AE1 47AE = …47AE
    EXPECT_EQ(record(press(87, kMost)), (Bytes{0x87, 0x57, 0x00, 0x03, 0x47, 0xAE, 0, 0}));
}

TEST(MacroCompiler, EveryKeyCodePassesUnchanged) {
    for (int code = 0; code <= 255; ++code) {
        EXPECT_EQ(record(release(static_cast<std::uint8_t>(code), 3)).at(1), code);
        EXPECT_EQ(record(release(static_cast<std::uint8_t>(code), 500)).at(1), code);
    }
}

TEST(MacroCompiler, TheStepsOfTheFirstLaunchStandOneBehindTheOther) {
    EXPECT_EQ(
        records({press(87, 25), release(87, 25), press(83, 30), release(83, 30), press(65, 20), release(65, 20)}, 14),
        (Bytes{0x99, 0x57, 0x19, 0x57, 0x9E, 0x53, 0x1E, 0x53, 0x94, 0x41, 0x14, 0x41, 0, 0}));
}

TEST(MacroCompiler, OfSeventyShortStepsTheFirst61AreKept) {
    const MacroImage image = VexaProtocol::compileMacro(presses(70, 25));
    for (std::size_t at = 2; at < 124; at += 2) {
        EXPECT_EQ(image[at], 0x99) << at;
        EXPECT_EQ(image[at + 1], 0x41) << at;
    }
    expectZerosFrom(image, 124);
    EXPECT_EQ(VexaProtocol::compileMacro(presses(61, 25)), image);
    EXPECT_NE(VexaProtocol::compileMacro(presses(60, 25)), image);
}

TEST(MacroCompiler, TheLastOf21LongStepsEndsWithTheImage) {
    const MacroImage image = VexaProtocol::compileMacro(presses(22, 57'005));
    EXPECT_EQ((Bytes{image.begin() + 122, image.end()}), (Bytes{0x85, 0x41, 0x00, 0x03, 0x02, 0x3A}));
    EXPECT_EQ(VexaProtocol::compileMacro(presses(21, 57'005)), image);
    EXPECT_NE(VexaProtocol::compileMacro(presses(20, 57'005)), image);
}

TEST(MacroCompiler, AfterAStepAt122NoFurtherOneFindsRoom) {
    std::vector<MacroEvent> events = presses(60, 25);
    events.push_back(release(0x42, 128));
    events.push_back(press(0x43, 25));
    const MacroImage image = VexaProtocol::compileMacro(events);
    EXPECT_EQ((Bytes{image.begin() + 120, image.end()}), (Bytes{0x99, 0x41, 0x1C, 0x42, 0x00, 0x03, 0x00, 0x01}));
}

TEST(MacroCompiler, TheRoomBehindAShortStepAt122StaysEmptyThoughOneWouldFit) {
    std::vector<MacroEvent> events = presses(60, 25);
    events.push_back(release(0x42, 25));
    events.push_back(press(0x43, 25));
    const MacroImage image = VexaProtocol::compileMacro(events);
    EXPECT_EQ((Bytes{image.begin() + 120, image.end()}), (Bytes{0x99, 0x41, 0x19, 0x42, 0, 0, 0, 0}));
}

// The format a second time, as a table: what each byte of a record is, by the step's delay and its last two digits.

enum class Part { directionAndThree, directionAndDelay, directionAndRest, key, zero, three, highUnits, lowUnits };
using enum Part;

struct Rule {
    std::int64_t leastDelay;
    std::int64_t mostDelay;
    int mostRest;
    std::vector<Part> parts;
};

const std::vector<Rule> kRules{
    {kLeast, 2, 99, {directionAndThree, key}},
    {3, 127, 99, {directionAndDelay, key}},
    {128, kMost, 3, {directionAndThree, key, zero, three, highUnits, lowUnits}},
    {128, kMost, 99, {directionAndRest, key, zero, three, highUnits, lowUnits}},
};

/// A delay as it is written: the last two digits, and what stands before them.
struct Digits {
    explicit Digits(std::int64_t delayMs) {
        if (delayMs < 100) return;
        const std::string text = std::to_string(delayMs);
        rest = std::stoi(text.substr(text.size() - 2));
        units = std::stoull(text.substr(0, text.size() - 2));
    }
    int rest = 0;
    unsigned long long units = 0;
};

int byteOf(Part part, const MacroEvent& event) {
    const Digits digits(event.delayMs);
    const int direction = event.isDown ? 128 : 0;
    switch (part) {
        case directionAndThree:
            return direction + 3;
        case directionAndDelay:
            return direction + static_cast<int>(event.delayMs);
        case directionAndRest:
            return direction + digits.rest;
        case key:
            return event.keyCode;
        case zero:
            return 0;
        case three:
            return 3;
        case highUnits:
            return static_cast<int>(digits.units / 256 % 256);
        case lowUnits:
            return static_cast<int>(digits.units % 256);
    }
    return -1;
}

const Rule& ruleFor(std::int64_t delayMs) {
    return *std::ranges::find_if(kRules, [&](const Rule& rule) {
        return delayMs >= rule.leastDelay && delayMs <= rule.mostDelay && Digits(delayMs).rest <= rule.mostRest;
    });
}

Bytes imageByTable(const std::vector<MacroEvent>& events) {
    Bytes image{0, 1};
    for (const MacroEvent& event : events) {
        if (image.size() > 123) break;
        for (const Part part : ruleFor(event.delayMs).parts) image.push_back(byteOf(part, event));
    }
    image.resize(128, 0);
    return image;
}

void expectAsTheTableSays(const std::vector<MacroEvent>& events) {
    const MacroImage image = VexaProtocol::compileMacro(events);
    EXPECT_EQ(Bytes(image.begin(), image.end()), imageByTable(events))
        << events.size() << " steps, the first of " << events.front().delayMs << " ms";
}

TEST(MacroCompiler, EveryDelayUpToTwentySecondsIsAsTheTableSays) {
    for (std::int64_t delayMs = -300; delayMs <= 20'000; ++delayMs) {
        expectAsTheTableSays({press(0x57, delayMs)});
        expectAsTheTableSays({release(0x20, delayMs)});
    }
}

TEST(MacroCompiler, TheEndsOfEveryPowerOfTwoAreAsTheTableSays) {
    for (int bit = 0; bit < 63; ++bit) {
        const std::int64_t power = std::int64_t{1} << bit;
        for (const std::int64_t delayMs : {power - 1, power, power + 1, -power}) {
            expectAsTheTableSays({press(0xF0, delayMs)});
        }
    }
    expectAsTheTableSays({press(0, kMost)});
    expectAsTheTableSays({press(0, kLeast)});
}

TEST(MacroCompiler, MixedListsOfEveryLengthAreAsTheTableSays) {
    constexpr std::array<std::int64_t, 7> kDelays{0, 3, 127, 128, 300, 65'536, kMost};
    for (std::size_t length = 1; length <= 80; ++length) {
        for (std::size_t stride = 1; stride < kDelays.size(); ++stride) {
            std::vector<MacroEvent> events;
            for (std::size_t i = 0; i < length; ++i) {
                const std::int64_t delayMs = kDelays[i * stride % kDelays.size()];
                events.push_back({{}, static_cast<std::uint8_t>(i * 37 + length), i % 3 != 0, delayMs});
            }
            expectAsTheTableSays(events);
        }
    }
}

}  // namespace
}  // namespace lumo
