// The process's current directory for the length of a test.
#pragma once

#include <QDir>

namespace lumo::test {

class CurrentFolder final {
public:
    explicit CurrentFolder(const QString& path) { QDir::setCurrent(path); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { QDir::setCurrent(m_before); }

private:
    QString m_before = QDir::currentPath();
};

}  // namespace lumo::test
