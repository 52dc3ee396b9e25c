// The tests' own entry point: one application object, on whatever display there is.
#include <gtest/gtest.h>

#include <QApplication>

#include "controls/Theme.h"

namespace {

void drawIntoMemoryWithoutADisplay() {
#ifdef Q_OS_LINUX
    const bool isChosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!isChosen && !hasDisplay) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

/// CTest may have several displays to give away, and says which one is ours: their ids are their numbers.
void takeDisplayFromCTest() {
    const QByteArray given = qgetenv("CTEST_RESOURCE_GROUP_0_DISPLAYS");  // "id:99,slots:1"
    const QByteArray id = given.mid(given.indexOf(':') + 1).split(',').first();
    if (!id.isEmpty()) qputenv("DISPLAY", ':' + id);
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();  // while building, when the display may not be there yet
    takeDisplayFromCTest();
    drawIntoMemoryWithoutADisplay();
    qputenv("QT_SCALE_FACTOR", "1");  // expected pixels and rectangles are written for it
    QApplication application(argc, argv);
    lumo::theme::apply(application);
    return RUN_ALL_TESTS();
}
