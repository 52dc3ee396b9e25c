// The program started once more while it runs, over a session bus of the test's own.
#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "gui/SettingsPortal.h"
#include "platform/qt/RunningInstance.h"

namespace lumo {
namespace {

constexpr auto kName = "com.vexalumo.lumo65";
constexpr int kLongMs = 60000;

/// What a program on its way out says to whoever wants it to come to the front.
class Refusal final : public QDBusVirtualObject {
public:
    int asked = 0;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage&, const QDBusConnection&) override {
        ++asked;
        return false;
    }
};

class OneInstance : public testing::Test {
protected:
    test::PrivateBus bus;
    QTemporaryDir home;
    QProcess program;
    int times = 0;

    void SetUp() override {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
        environment.insert("XDG_CONFIG_HOME", home.path());
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
    }
    void TearDown() override {
        program.kill();
        program.waitForFinished();
    }

    void startProgram() { program.start(LUMO_PROGRAM, QStringList{}); }
    bool programEnds() {
        return QTest::qWaitFor([this] { return program.state() == QProcess::NotRunning; }, kLongMs);
    }
    /// The process that has the name, as the bus knows it; 0 for none.
    uint owner() const {
        const QDBusReply<uint> pid = bus.connect()().interface()->servicePid(kName);
        return pid.isValid() ? pid.value() : 0;
    }
    bool programGetsTheName() {
        return QTest::qWaitFor([this] { return owner() == static_cast<uint>(program.processId()); }, kLongMs);
    }
};

TEST_F(OneInstance, BringsTheWindowThatIsOpenToTheFrontAndEnds) {
    RunningInstance running(bus.connect()());
    ASSERT_TRUE(running.claim());
    running.whenStartedAgain([this] { ++times; });
    startProgram();
    ASSERT_TRUE(programEnds());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(times, 1);
}

TEST_F(OneInstance, HasTheNameAsLongAsItRuns) {
    startProgram();
    ASSERT_TRUE(programGetsTheName());
    program.kill();
    program.waitForFinished();
    EXPECT_TRUE(QTest::qWaitFor([this] { return owner() == 0; }, kLongMs));
}

TEST_F(OneInstance, TheSecondOneTellsTheFirst) {
    startProgram();
    ASSERT_TRUE(programGetsTheName());
    RunningInstance second(bus.connect()());
    EXPECT_FALSE(second.claim());
    EXPECT_EQ(program.state(), QProcess::Running);
}

TEST_F(OneInstance, ARelaunchedProgramWaitsForTheEndOfTheOldOne) {
    RunningInstance old(bus.connect()());
    ASSERT_TRUE(old.claim());
    old.whenStartedAgain([this] { ++times; });
    old.letGo();
    Refusal refusal;
    ASSERT_TRUE(bus.connect()().registerVirtualObject("/com/vexalumo/lumo65", &refusal));
    startProgram();
    ASSERT_TRUE(QTest::qWaitFor([&refusal] { return refusal.asked > 1; }, kLongMs));
    EXPECT_EQ(program.state(), QProcess::Running);
    bus.connect()().interface()->unregisterService(kName);  // as the end of its process does
    EXPECT_TRUE(programGetsTheName());
    EXPECT_EQ(times, 0);
}

}  // namespace
}  // namespace lumo
