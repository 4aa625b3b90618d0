#include "viewer/writers/json_numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace mur::viewer {

std::optional<double> ReadNumber(std::string_view TokenA) {
  double value = 0;
  const char* end = TokenA.data() + TokenA.size();
  const auto [stop, error] = std::from_chars(TokenA.data(), end, value);
  if (error != std::errc() || stop != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string NumberLike(double ValueA, std::string_view SampleA) {
  constexpr double kLargestWhole = 9007199254740992.0;  // 2^53
  std::array<char, 32> text{};
  if (ValueA != std::round(ValueA) || std::abs(ValueA) >= kLargestWhole)
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), ValueA).ptr};
  const auto whole = static_cast<long long>(ValueA);
  std::string number{text.data(), std::to_chars(text.data(), text.data() + text.size(), whole).ptr};
  return SampleA.find_first_of(".eE") == std::string_view::npos ? number : number + ".0";
}

}  // namespace mur::viewer
