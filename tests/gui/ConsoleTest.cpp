// The console of the program as it runs.
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>

#include "platform/qt/NativePlatform.h"

namespace lumo {
namespace {

void printToNobody() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0 || ::dup2(ends[1], STDOUT_FILENO) < 0) std::_Exit(2);
    ::close(ends[0]);
    std::signal(SIGPIPE, SIG_DFL);  // whatever the tests' own libraries have made of it
    NativePlatform platform;
    platform.print("one line");
    platform.print("another");
    std::_Exit(0);
}

TEST(Console, ALineThatNobodyReadsDoesNotEndTheProgram) {
    EXPECT_EXIT(printToNobody(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace lumo
