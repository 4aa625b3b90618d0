#pragma once

#include <string>
#include <vector>

namespace mur::test {

/// How two texts differ: lines that only the first has begin with a minus, those of the second with a plus.
std::string Difference(const std::vector<std::string>& ExpectedA, const std::vector<std::string>& MetA);

}  // namespace mur::test
