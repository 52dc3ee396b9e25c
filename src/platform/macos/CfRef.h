// A counted reference to a CoreFoundation object: the balance of retain and release, kept by the compiler.
// Any thread, as CoreFoundation's own counts are.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace lumo {

/// `T` is one of the reference types (CFStringRef, IOHIDDeviceRef …). May be empty.
template <typename T>
class CfRef final {
public:
    CfRef() = default;
    CfRef(const CfRef& other) : m_object(other.m_object) {
        if (m_object) CFRetain(m_object);
    }
    CfRef(CfRef&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    CfRef& operator=(CfRef other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~CfRef() {
        if (m_object) CFRelease(m_object);
    }

    /// For what a function with Create or Copy in its name returned; NULL gives an empty reference.
    [[nodiscard]] static CfRef adopt(T object) { return CfRef(object); }

    /// For what came by the get rule: as the argument of a callback, or out of a collection or a property.
    [[nodiscard]] static CfRef retain(T object) {
        if (object) CFRetain(object);
        return CfRef(object);
    }

    [[nodiscard]] T get() const { return m_object; }
    [[nodiscard]] explicit operator bool() const { return m_object != nullptr; }

private:
    explicit CfRef(T object) : m_object(object) {}

    T m_object = nullptr;
};

}  // namespace lumo
