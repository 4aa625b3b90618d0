#pragma once

#include <string_view>

namespace mur::test {

/// Whether the tests run on "windows" (the system itself or one in its place) or "wine" (in its place).
bool RunsOn(std::string_view PlatformA);

}  // namespace mur::test
