// A desktop by the XDG standards, as Qt knows it.
#pragma once

#include <QString>

#include "platform/Desktop.h"

namespace lumo {

/// Main thread, after the application object exists.
class XdgDesktop final : public Desktop {
public:
    /// The file that is started for one more of this program; found out when it is needed where none is given.
    explicit XdgDesktop(QString executable = {}) : m_executable(std::move(executable)) {}

    /// No desktop here has the panes that our links lead to: none of them can be formed.
    void openLink(std::string_view) override {}

    void openThisApplication(Task completed) override;
    void terminate() override;
    [[nodiscard]] std::unique_ptr<Registration> whenBecameActive(Task task) override;

private:
    QString m_executable;
};

}  // namespace lumo
