// A CoreFoundation of our own for the tests: objects with true reference counts, and a count of the living.
// Any thread. Using an object after its last release is a heap-use-after-free for AddressSanitizer.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace lumo::fakemac {

/// Base of every object behind a CFTypeRef.
class Object {
public:
    explicit Object(CFTypeID type);
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object();

    void retain() { ++m_references; }
    void release();
    [[nodiscard]] CFTypeID type() const { return m_type; }
    [[nodiscard]] virtual bool equals(const Object& other) const { return this == &other; }

private:
    const CFTypeID m_type;
    std::atomic<long> m_references = 1;
};

/// Objects that were created and not yet destroyed; string literals and the two booleans are not counted.
[[nodiscard]] long liveObjects();

/// The object behind a reference; stops the process on NULL, as CoreFoundation does.
[[nodiscard]] Object& objectOf(CFTypeRef reference);
template <typename T>
[[nodiscard]] T& objectAs(CFTypeRef reference) {
    return dynamic_cast<T&>(objectOf(reference));
}
template <typename Ref>
[[nodiscard]] Ref referenceTo(Object* object) {
    return static_cast<Ref>(static_cast<void*>(object));
}

enum : CFTypeID { kStringType = 7, kNumberType = 22, kBooleanType = 21, kArrayType = 19, kSetType = 17 };
enum : CFTypeID { kDictionaryType = 18, kDeviceType = 300, kManagerType = 301 };

class String final : public Object {
public:
    explicit String(std::string utf8) : Object(kStringType), text(std::move(utf8)) {}
    [[nodiscard]] bool equals(const Object& other) const override;
    const std::string text;
};

class Number final : public Object {
public:
    explicit Number(std::variant<std::int64_t, double> number) : Object(kNumberType), value(number) {}
    const std::variant<std::int64_t, double> value;
};

class Boolean final : public Object {
public:
    explicit Boolean(bool boolean) : Object(kBooleanType), value(boolean) {}
    const bool value;
};

/// Retains its values only where the collection was created with the standard callbacks.
class Collection final : public Object {
public:
    Collection(CFTypeID type, std::vector<const void*> contents, bool retaining);
    ~Collection() override;
    const std::vector<const void*> values;  // of a dictionary: key, value, key, value …

private:
    const bool m_retaining;
};

}  // namespace lumo::fakemac
