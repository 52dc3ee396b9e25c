#include "FakeCoreFoundation.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>

namespace lumo::fakemac {
namespace {

std::atomic<long> g_live = 0;

// String literals live as long as the process and are the same object wherever they stand.
CFStringRef literal(const std::string& text) {
    static std::mutex mutex;
    static std::map<std::string, std::unique_ptr<String>> literals;
    const std::lock_guard lock(mutex);
    auto& string = literals[text];
    if (!string) {
        string = std::make_unique<String>(text);
        --g_live;
    }
    return referenceTo<CFStringRef>(string.get());
}

// They live as long as the process, too.
CFBooleanRef constant(bool value) {
    static Boolean booleans[]{Boolean(false), Boolean(true)};
    --g_live;
    return referenceTo<CFBooleanRef>(&booleans[value ? 1 : 0]);
}

std::vector<const void*> copied(const void** values, CFIndex count) {
    return std::vector<const void*>(values, values + count);  // in braces it would hold the two pointers themselves
}

std::size_t characters(const std::string& utf8) {  // UTF-16 units, which CoreFoundation counts in
    std::size_t units = 0;
    for (const char byte : utf8) {
        const auto value = static_cast<unsigned char>(byte);
        units += (value & 0xC0) != 0x80 ? 1 : 0;
        units += value >= 0xF0 ? 1 : 0;
    }
    return units;
}

}  // namespace

Object::Object(CFTypeID type) : m_type(type) { ++g_live; }
Object::~Object() { --g_live; }

void Object::release() {
    if (--m_references == 0) delete this;
}

long liveObjects() { return g_live; }

Object& objectOf(CFTypeRef reference) {
    if (!reference) {
        std::fputs("CoreFoundation was handed NULL\n", stderr);
        std::abort();
    }
    return *static_cast<Object*>(const_cast<void*>(reference));
}

bool String::equals(const Object& other) const {
    const auto* string = dynamic_cast<const String*>(&other);
    return string && string->text == text;
}

Collection::Collection(CFTypeID type, std::vector<const void*> contents, bool retaining)
    : Object(type), values(std::move(contents)), m_retaining(retaining) {
    for (const void* value : values) {
        if (m_retaining) objectOf(value).retain();
    }
}

Collection::~Collection() {
    for (const void* value : values) {
        if (m_retaining) objectOf(value).release();
    }
}

}  // namespace lumo::fakemac

struct CFArrayCallBacks {};
struct CFDictionaryKeyCallBacks {};
struct CFDictionaryValueCallBacks {};

using namespace lumo;

extern "C" {

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFArrayCallBacks kCFTypeArrayCallBacks{};
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks{};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks{};
const CFBooleanRef kCFBooleanTrue = fakemac::constant(true);
const CFBooleanRef kCFBooleanFalse = fakemac::constant(false);
const CFRunLoopMode kCFRunLoopDefaultMode = fakemac::literal("kCFRunLoopDefaultMode");

CFStringRef __CFStringMakeConstantString(const char* text) { return fakemac::literal(text); }

CFTypeRef CFRetain(CFTypeRef object) {
    fakemac::objectOf(object).retain();
    return object;
}
void CFRelease(CFTypeRef object) { fakemac::objectOf(object).release(); }
Boolean CFEqual(CFTypeRef one, CFTypeRef other) {
    return fakemac::objectOf(one).equals(fakemac::objectOf(other)) ? 1 : 0;
}
CFTypeID CFGetTypeID(CFTypeRef object) { return fakemac::objectOf(object).type(); }

CFTypeID CFStringGetTypeID(void) { return fakemac::kStringType; }
CFIndex CFStringGetLength(CFStringRef text) {
    return static_cast<CFIndex>(fakemac::characters(fakemac::objectAs<fakemac::String>(text).text));
}
CFIndex CFStringGetBytes(CFStringRef text, CFRange range, CFStringEncoding encoding, UInt8, Boolean, UInt8* buffer,
                         CFIndex maxBufLen, CFIndex* usedBufLen) {
    const std::string& utf8 = fakemac::objectAs<fakemac::String>(text).text;
    const CFIndex length = CFStringGetLength(text);
    const auto size = static_cast<CFIndex>(utf8.size());
    // The double converts whole strings into UTF-8 and nothing else.
    if (encoding != kCFStringEncodingUTF8 || range.location != 0 || range.length != length) std::abort();
    if (buffer && maxBufLen < size) std::abort();
    if (buffer) std::memcpy(buffer, utf8.data(), utf8.size());
    if (usedBufLen) *usedBufLen = size;
    return length;
}

CFTypeID CFNumberGetTypeID(void) { return fakemac::kNumberType; }
CFNumberRef CFNumberCreate(CFAllocatorRef, CFNumberType type, const void* value) {
    fakemac::Number* number = nullptr;
    if (type == kCFNumberSInt32Type)
        number = new fakemac::Number(std::int64_t{*static_cast<const std::int32_t*>(value)});
    if (type == kCFNumberSInt64Type) number = new fakemac::Number(*static_cast<const std::int64_t*>(value));
    if (type == kCFNumberDoubleType) number = new fakemac::Number(*static_cast<const double*>(value));
    return fakemac::referenceTo<CFNumberRef>(number);
}
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value) {
    if (type != kCFNumberSInt64Type) std::abort();
    const auto& held = fakemac::objectAs<fakemac::Number>(number).value;
    const auto* real = std::get_if<double>(&held);
    // As documented: a value that does not fit is handed over rounded, and the answer is false.
    *static_cast<std::int64_t*>(value) = real ? static_cast<std::int64_t>(*real) : std::get<std::int64_t>(held);
    return !real || std::trunc(*real) == *real;
}

CFArrayRef CFArrayCreate(CFAllocatorRef, const void** values, CFIndex count, const CFArrayCallBacks* callBacks) {
    return fakemac::referenceTo<CFArrayRef>(new fakemac::Collection(fakemac::kArrayType, fakemac::copied(values, count),
                                                                    callBacks == &kCFTypeArrayCallBacks));
}
CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values, CFIndex count,
                                   const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks) {
    std::vector<const void*> contents;
    for (CFIndex i = 0; i < count; ++i) contents.insert(contents.end(), {keys[i], values[i]});
    const bool retaining =
        keyCallBacks == &kCFTypeDictionaryKeyCallBacks && valueCallBacks == &kCFTypeDictionaryValueCallBacks;
    return fakemac::referenceTo<CFDictionaryRef>(
        new fakemac::Collection(fakemac::kDictionaryType, std::move(contents), retaining));
}
CFIndex CFSetGetCount(CFSetRef set) { return std::ssize(fakemac::objectAs<fakemac::Collection>(set).values); }
void CFSetGetValues(CFSetRef set, const void** values) {
    for (const void* value : fakemac::objectAs<fakemac::Collection>(set).values) *values++ = value;
}

}  // extern "C"
