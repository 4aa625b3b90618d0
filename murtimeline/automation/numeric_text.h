#pragma once

#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/automation/variant.h>

namespace mur {

/// The number that a text stands for: blanks around it, a sign, digits with grouping commas, a decimal point
/// and an exponent ("1e1"), or a hexadecimal or octal number ("&H1F", "&O17"). None for any other text.
MUR_API std::optional<double> ParseNumber(StringView TextA);

/// The number in a value that counts as numeric: every number and Boolean (true is -1), Empty (0), and a text
/// that is one; none for dates and all else.
MUR_API std::optional<double> NumericValue(const Variant& ValueA);

}  // namespace mur
