#pragma once

#include <ostream>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/variant.h>

#include "tests/support/value_text.h"

// How a failing expectation shows the library's values; found by the test framework through their namespace.
namespace mur {

inline void PrintTo(const Variant& ValueA, std::ostream* StreamA) {
  *StreamA << KindName(ValueA.Kind()) << ' ' << test::ValueText(ValueA);
}

inline void PrintTo(Date ValueA, std::ostream* StreamA) {
  *StreamA << test::DateText(ValueA) << " (" << test::NumberText(ValueA.Days()) << " days)";
}

}  // namespace mur
