// Observable objects: a property announces every write to its owner's observers, and then stores.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace lumo {

/// Keeps an observer registered until it is destroyed. May outlive the observed object. Declare it last.
class Subscription final {
public:
    Subscription() = default;

private:
    friend class ObservableObject;
    using Observer = std::function<void()>;
    explicit Subscription(std::shared_ptr<Observer> observer) : m_observer(std::move(observer)) {}
    std::shared_ptr<Observer> m_observer;
};

/// Main thread only.
class ObservableObject {
public:
    ObservableObject() = default;
    ObservableObject(const ObservableObject&) = delete;
    ObservableObject& operator=(const ObservableObject&) = delete;

    /// `willChange` runs before each write to any property of this object, also when the value stays the same. It
    /// still reads the old values, so an observer waits a turn before it looks.
    [[nodiscard]] Subscription observe(std::function<void()> willChange);

    /// Tells every observer. An observer that is dropped meanwhile is not called; one that is added is not either.
    void announce();

protected:
    ~ObservableObject() = default;

private:
    std::vector<std::weak_ptr<Subscription::Observer>> m_observers;
};

/// A property of an observable object. Main thread only.
template <typename T>
class Published final {
public:
    Published(ObservableObject& owner, T initial) : m_owner(owner), m_value(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;
    ~Published() = default;

    const T& get() const { return m_value; }  // still the old value while observers run

    void set(T value) {
        m_owner.announce();
        m_value = std::move(value);
    }

private:
    ObservableObject& m_owner;
    T m_value;
};

/// A property that the I/O queue reads, too: written and announced on the main thread, copied out on any.
template <typename T>
class SharedPublished final {
public:
    SharedPublished(ObservableObject& owner, T initial) : m_owner(owner), m_value(std::move(initial)) {}
    SharedPublished(const SharedPublished&) = delete;
    SharedPublished& operator=(const SharedPublished&) = delete;
    ~SharedPublished() = default;

    /// Main thread, the only writer: needs no lock.
    const T& get() const { return m_value; }

    void set(T value) {
        m_owner.announce();
        const std::lock_guard lock(m_mutex);
        std::swap(m_value, value);
    }

    /// Any thread.
    [[nodiscard]] T snapshot() const {
        const std::lock_guard lock(m_mutex);
        return m_value;
    }

private:
    ObservableObject& m_owner;
    mutable std::mutex m_mutex;
    T m_value;
};

}  // namespace lumo
