#include "platform/qt/XdgDesktop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

namespace lumo {
namespace {

TEST(XdgDesktop, TellsOfEachTimeTheProgramComesToTheFrontAndOfNothingElse) {
    XdgDesktop desktop;
    int times = 0;
    auto watching = desktop.whenBecameActive([&times] { ++times; });
    emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(times, 0);
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_EQ(times, 2);
    watching.reset();
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_EQ(times, 2);
}

/// Writes its arguments, and then its name, beside itself.
QString makeProgram(const QTemporaryDir& folder) {
    const QString path = folder.filePath("one more");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\necho \"$# arguments\" >\"$0.part\"\nmv \"$0.part\" \"$0.started\"\n");
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

TEST(XdgDesktop, StartsTheProgramWithoutArgumentsAndTellsThatItDid) {
    const QTemporaryDir folder;
    const QString program = makeProgram(folder);
    bool isCompleted = false;
    XdgDesktop(program).openThisApplication([&isCompleted] { isCompleted = true; });
    EXPECT_TRUE(isCompleted);
    ASSERT_TRUE(QTest::qWaitFor([&program] { return QFile::exists(program + ".started"); }, 30000));
    QFile started(program + ".started");
    ASSERT_TRUE(started.open(QIODevice::ReadOnly));
    EXPECT_EQ(started.readAll(), "0 arguments\n");
}

TEST(XdgDesktop, TellsThatItTriedWhereTheProgramCannotBeStarted) {
    bool isCompleted = false;
    XdgDesktop("/nowhere/at all").openThisApplication([&isCompleted] { isCompleted = true; });
    EXPECT_TRUE(isCompleted);
}

TEST(XdgDesktop, EndsTheProcessAsTheQuitActionDoes) {
    int times = 0;
    const auto leaving = QObject::connect(qApp, &QCoreApplication::aboutToQuit, [&times] { ++times; });
    XdgDesktop desktop;
    QMetaObject::invokeMethod(
        qApp, [&desktop] { desktop.terminate(); }, Qt::QueuedConnection);
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(times, 1);
    QObject::disconnect(leaving);
}

}  // namespace
}  // namespace lumo
