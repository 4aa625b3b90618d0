#pragma once

#include <optional>

#include <murtimeline/automation/format_decimal.h>
#include <murtimeline/automation/format_region.h>
#include <murtimeline/automation/variant.h>

namespace mur {

/// The number that a text writes in a region: spaces around, a sign, group separators and an exponent are
/// allowed. None when it writes no number.
std::optional<double> NumberInText(StringView TextA, const Region& RegionA);

/// The number in a Boolean, number, date or numeric text; none for every other value.
std::optional<double> NumberInValue(const Variant& ValueA, const Region& RegionA);

/// The digits of a finite number that `NumberInValue` found in `ValueA`, as many as its type holds.
Decimal DigitsOf(const Variant& ValueA, double NumberA);

}  // namespace mur
