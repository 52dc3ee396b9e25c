#include "FakeEventAccess.h"

#include <ApplicationServices/ApplicationServices.h>

#include "FakeCoreFoundation.h"

namespace lumo::fakemac {
namespace {

FakeEventAccess* g_system = nullptr;

FakeEventAccess& called(const char* name) {
    g_system->calls.emplace_back(name);
    return *g_system;
}

std::map<std::string, bool> flagsOf(CFDictionaryRef dictionary) {
    const auto& contents = objectAs<Collection>(dictionary).values;
    std::map<std::string, bool> flags;
    for (std::size_t i = 0; i < contents.size(); i += 2) {
        flags[objectAs<String>(contents[i]).text] = objectAs<Boolean>(contents[i + 1]).value;
    }
    return flags;
}

}  // namespace

FakeEventAccess::FakeEventAccess() { g_system = this; }
FakeEventAccess::~FakeEventAccess() { g_system = nullptr; }

}  // namespace lumo::fakemac

using namespace lumo;

extern "C" {

CFStringRef kAXTrustedCheckOptionPrompt = CFSTR("AXTrustedCheckOptionPrompt");

bool CGPreflightListenEventAccess(void) { return fakemac::called("CGPreflightListenEventAccess").mayListen; }
bool CGRequestListenEventAccess(void) { return fakemac::called("CGRequestListenEventAccess").mayListen; }
Boolean AXIsProcessTrusted(void) { return fakemac::called("AXIsProcessTrusted").isTrusted ? 1 : 0; }

Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options) {
    fakemac::FakeEventAccess& system = fakemac::called("AXIsProcessTrustedWithOptions");
    if (options) system.options.push_back(fakemac::flagsOf(options));
    return system.isTrusted ? 1 : 0;
}

}  // extern "C"
