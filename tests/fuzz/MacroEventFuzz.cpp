// Any text at all is read as a macro step, or refused with the key that will not do.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "macro/MacroEventJson.h"

namespace {

using Json = nlohmann::ordered_json;
using Reason = lumo::DecodingError::Reason;

void expect(bool isSo) {
    if (!isSo) std::abort();
}

void checkRefusal(const lumo::DecodingError& error, const Json& json) {
    const std::string& key = error.key();
    expect(key.empty() == (error.reason() == Reason::notAnObject));
    expect(key.empty() == !json.is_object());
    if (key.empty()) return;
    expect(key == "id" || key == "keyCode" || key == "isDown" || key == "delayMs");
    expect(json.contains(key) == (error.reason() != Reason::missingKey));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Json json = Json::parse(data, data + size, nullptr, false);
    try {
        const lumo::MacroEvent step = lumo::decodeMacroEvent(json);
        const Json written = lumo::encode(step);
        expect(written.size() == 4);
        expect(lumo::decodeMacroEvent(Json::parse(written.dump())) == step);
    } catch (const lumo::DecodingError& error) {
        checkRefusal(error, json);
    }
    return 0;
}
