#include "foundation/Observable.h"

namespace lumo {

Subscription ObservableObject::observe(std::function<void()> willChange) {
    auto observer = std::make_shared<Subscription::Observer>(std::move(willChange));
    m_observers.push_back(observer);
    return Subscription(std::move(observer));
}

void ObservableObject::announce() {
    const auto observers = m_observers;  // a copy: an observer may add or drop others
    for (const auto& weak : observers) {
        if (const auto observer = weak.lock()) (*observer)();
    }
    std::erase_if(m_observers, [](const auto& weak) { return weak.expired(); });
}

}  // namespace lumo
