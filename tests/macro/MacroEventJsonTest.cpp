#include "macro/MacroEventJson.h"

#include <gmock/gmock.h>

#include <limits>

namespace lumo {
namespace {

using Reason = DecodingError::Reason;
using Json = nlohmann::ordered_json;

constexpr auto kUuidText = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";
constexpr Uuid kUuid{{0xE6, 0x21, 0xE1, 0xF8, 0xC3, 0x6C, 0x49, 0x5A, 0x93, 0xFC, 0x0C, 0x24, 0x7A, 0x3E, 0x6E, 0x5F}};

Json whole() {
    return Json::parse(
        R"({"id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", "keyCode": 87, "isDown": true, "delayMs": 25})");
}
Json with(const std::string& key, const std::string& value) {
    Json json = whole();
    json[key] = Json::parse(value);
    return json;
}
Json without(const std::string& key) {
    Json json = whole();
    json.erase(key);
    return json;
}

void expectRefused(const Json& json, Reason reason, const std::string& key) {
    try {
        (void)decodeMacroEvent(json);
        ADD_FAILURE() << json << " was read";
    } catch (const DecodingError& error) {
        EXPECT_EQ(error.reason(), reason) << json;
        EXPECT_EQ(error.key(), key) << json;
        EXPECT_THAT(error.what(), testing::HasSubstr(key));
    }
}

TEST(MacroEventJson, IsWrittenUnderFourKeysInTheirOrder) {
    EXPECT_EQ(encode({kUuid, 87, true, 25}).dump(),
              R"({"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","keyCode":87,"isDown":true,"delayMs":25})");
    EXPECT_EQ(encode({kUuid, 240, false, -1}).dump(),
              R"({"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","keyCode":240,"isDown":false,"delayMs":-1})");
}

TEST(MacroEventJson, IsReadWithTheIdItWasWrittenWith) {
    EXPECT_EQ(decodeMacroEvent(whole()), (MacroEvent{kUuid, 87, true, 25}));
}

TEST(MacroEventJson, TheOrderOfTheKeysAndFurtherOnesDoNotMatter) {
    const auto json = Json::parse(R"({"delayMs": 25, "note": null, "isDown": true, "keyCode": 87, "id": ")" +
                                  std::string(kUuidText) + "\"}");
    EXPECT_EQ(decodeMacroEvent(json), (MacroEvent{kUuid, 87, true, 25}));
}

TEST(MacroEventJson, EveryStepComesBackAsItWas) {
    for (const std::int64_t delayMs : {std::numeric_limits<std::int64_t>::min(), std::int64_t{-1}, std::int64_t{0},
                                       std::int64_t{128}, std::numeric_limits<std::int64_t>::max()}) {
        for (const int keyCode : {0, 87, 255}) {
            for (const bool isDown : {true, false}) {
                const MacroEvent event{Uuid::random(), static_cast<std::uint8_t>(keyCode), isDown, delayMs};
                EXPECT_EQ(decodeMacroEvent(Json::parse(encode(event).dump())), event);
            }
        }
    }
}

TEST(MacroEventJson, EachMissingKeyIsNamed) {
    for (const auto* const key : {"id", "keyCode", "isDown", "delayMs"}) {
        expectRefused(without(key), Reason::missingKey, key);
    }
}

TEST(MacroEventJson, TheFirstMissingKeyIsTheOneThatIsNamed) {
    expectRefused(Json::parse("{}"), Reason::missingKey, "id");
}

TEST(MacroEventJson, AKeyOfTheWrongTypeIsNamed) {
    for (const auto* const value : {"null", "true", "7", "[]", "{}"})
        expectRefused(with("id", value), Reason::wrongType, "id");
    for (const auto* const value : {"null", "true", R"("87")", "87.0", "87.5", "[87]"}) {
        expectRefused(with("keyCode", value), Reason::wrongType, "keyCode");
        expectRefused(with("delayMs", value), Reason::wrongType, "delayMs");
    }
    for (const auto* const value : {"null", "0", "1", R"("true")"}) {
        expectRefused(with("isDown", value), Reason::wrongType, "isDown");
    }
}

TEST(MacroEventJson, ANumberOutOfItsRangeIsNamed) {
    for (const auto* const value : {"-1", "256", "-9223372036854775808", "18446744073709551615", "1e300"}) {
        expectRefused(with("keyCode", value), Reason::outOfRange, "keyCode");
    }
    for (const auto* const value : {"9223372036854775808", "-9223372036854775809", "18446744073709551616", "-1e300"}) {
        expectRefused(with("delayMs", value), Reason::outOfRange, "delayMs");
    }
}

TEST(MacroEventJson, AMalformedUuidIsNamed) {
    for (const auto* const value : {R"("")", R"("E621E1F8")", R"("E621E1F8-C36C-495A-93FC-0C247A3E6E5G")"}) {
        expectRefused(with("id", value), Reason::malformedUuid, "id");
    }
}

TEST(MacroEventJson, OnlyAnObjectIsAStep) {
    for (const auto* const text : {"null", "[]", "7", R"("id")"})
        expectRefused(Json::parse(text), Reason::notAnObject, "");
    expectRefused(Json(nlohmann::detail::value_t::discarded), Reason::notAnObject, "");
}

}  // namespace
}  // namespace lumo
