// A system of our own that keeps the grants to listen to keys and to watch other programs. Main thread.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace lumo::fakemac {

/// The one the C functions talk to; there is one at a time.
class FakeEventAccess final {
public:
    FakeEventAccess();
    FakeEventAccess(const FakeEventAccess&) = delete;
    FakeEventAccess& operator=(const FakeEventAccess&) = delete;
    ~FakeEventAccess();

    bool mayListen = false;
    bool isTrusted = false;
    std::vector<std::string> calls;
    /// Of each question that came with options.
    std::vector<std::map<std::string, bool>> options;
};

}  // namespace lumo::fakemac
