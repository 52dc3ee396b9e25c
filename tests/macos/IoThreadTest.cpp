#include "platform/IoThread.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <pthread/qos.h>

#include <string>

namespace {
std::string g_name;
qos_class_t g_qosClass = QOS_CLASS_UNSPECIFIED;
int g_priority = -1;
}  // namespace

int pthread_setname_np(const char* name) {
    g_name = name;
    return 0;
}

int pthread_set_qos_class_self_np(qos_class_t qosClass, int relativePriority) {
    g_qosClass = qosClass;
    g_priority = relativePriority;
    return 0;
}

namespace lumo::test {

TEST(MacIoThread, BearsTheLabelOfTheQueue) {
    prepareIoThread("com.vexalumo.lumo65.ioqueue");
    EXPECT_EQ(g_name, "com.vexalumo.lumo65.ioqueue");
}

TEST(MacIoThread, KeepsALabelThatJustFits) {
    prepareIoThread("x" + std::string(62, '.'));
    EXPECT_EQ(g_name, "x" + std::string(62, '.'));
}

TEST(MacIoThread, KeepsTheEndOfALabelThatTheSystemWouldRefuse) {
    prepareIoThread(std::string(40, '-') + "x" + std::string(62, '.'));
    EXPECT_EQ(g_name, "x" + std::string(62, '.'));
}

TEST(MacIoThread, RunsAtUserInitiatedQualityOfService) {
    prepareIoThread("label");
    EXPECT_EQ(g_qosClass, 0x19);
    EXPECT_EQ(g_priority, 0);
}

}  // namespace lumo::test
