// Two real folders to find pictures in, the program's resources and a working copy, and a count of every look.
#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QDir>
#include <QTemporaryDir>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "app/AssetManager.h"
#include "gui/CurrentFolder.h"
#include "support/FakeBundle.h"

namespace lumo::test {

class AssetFixture : public testing::Test {
private:
    QTemporaryDir m_temporary;
    const QString m_root = QDir(m_temporary.path()).canonicalPath();  // as the process will be told where it stands

protected:
    AssetFixture();

    const QString resources = m_root + "/resources";
    const QString workingCopy = m_root + "/copy";
    FakeBundle bundle;                  // has the resources unless a test takes them away
    std::vector<std::string> checks;    // the paths where the manager looked for a file, in order
    std::set<std::thread::id> threads;  // that looked
    AssetManager assets{bundle, [this](const std::string& path) { return check(path); }};

    /// Puts a file there; folders are made as needed.
    static void write(const QString& path, const QByteArray& bytes);
    /// A picture of that colour.
    static void paint(const QString& path, const QColor& color, QSize size = {2, 2});

    /// What the picture of that name shows; invalid when there is none.
    [[nodiscard]] QColor colorOf(std::string_view name);

private:
    std::mutex m_lookedAt;  // may be looked at by two threads

    bool check(const std::string& path);

    CurrentFolder m_current{makeFolder(workingCopy)};

    static QString makeFolder(const QString& path) {
        EXPECT_TRUE(QDir().mkpath(path));
        return path;
    }
};

}  // namespace lumo::test
