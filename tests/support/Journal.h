// What a test's doubles were asked, in order.
#pragma once

#include <string>
#include <vector>

namespace lumo::test {

using Journal = std::vector<std::string>;

}  // namespace lumo::test
