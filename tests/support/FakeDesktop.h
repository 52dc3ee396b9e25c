// A desktop that only notes what is asked of it; the test brings the program to the front.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/Desktop.h"
#include "support/Journal.h"

namespace lumo::test {

class FakeDesktop final : public Desktop {
public:
    explicit FakeDesktop(Journal& journal) : m_journal(journal) {}

    void becomeActive() {
        if (const auto task = m_becameActive.lock()) (*task)();
    }

    /// As the system calls it once the request to open is through, well or not.
    void completeOpening() { std::exchange(m_completed, {})(); }

    void openLink(std::string_view link) override { m_journal.push_back("open " + std::string(link)); }
    void openThisApplication(Task completed) override {
        m_journal.emplace_back("open this application");
        m_completed = std::move(completed);
    }
    void terminate() override { m_journal.emplace_back("terminate"); }
    std::unique_ptr<Registration> whenBecameActive(Task task) override {
        auto observer = std::make_unique<Observer>(std::move(task));
        m_becameActive = observer->task;
        return observer;
    }

private:
    struct Observer final : Registration {
        explicit Observer(Task told) : task(std::make_shared<Task>(std::move(told))) {}
        std::shared_ptr<Task> task;
    };

    Journal& m_journal;
    std::weak_ptr<Task> m_becameActive;
    Task m_completed;
};

}  // namespace lumo::test
