#pragma once

#include <array>
#include <charconv>
#include <string>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// The shortest text that reads back as `ValueA`, the same in every region.
inline std::string NumberText(float ValueA) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), ValueA).ptr;
  return {text.data(), end};
}

/// `#rrggbb`.
inline std::string ColorText(Rgba ColorA) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (const std::uint8_t part : {ColorA.red, ColorA.green, ColorA.blue}) {
    text += kDigits[part >> 4];
    text += kDigits[part & 15];
  }
  return text;
}

}  // namespace mur
