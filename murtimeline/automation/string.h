#pragma once

#include <cstring>
#include <string>
#include <string_view>

#include <murtimeline/automation/export.h>

namespace mur {

/// An automation string: UTF-16 units as they came, embedded nulls and lone surrogates included.
/// Text becomes UTF-8 only at the edges (logs, tests, files).
using String = std::u16string;
using StringView = std::u16string_view;

/// Whether two texts are the same, unit by unit. (The comparison of the standard library goes unit by unit
/// for 16-bit text; this one does not.)
inline bool IsSameText(StringView LeftA, StringView RightA) noexcept {
  return LeftA.size() == RightA.size() &&
         (LeftA.empty() || std::memcmp(LeftA.data(), RightA.data(), LeftA.size() * sizeof(char16_t)) == 0);
}

/// UTF-8 for `TextA`; a lone surrogate becomes U+FFFD.
MUR_API std::string ToUtf8(StringView TextA);

/// UTF-16 for `TextA`; every byte that is not part of well-formed UTF-8 becomes U+FFFD.
MUR_API String FromUtf8(std::string_view TextA);

/// The 16-bit text of plain ASCII digits, labels and the like.
MUR_API String FromAscii(std::string_view TextA);

}  // namespace mur
