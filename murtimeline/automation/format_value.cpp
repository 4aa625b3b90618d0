#include <murtimeline/automation/format_value.h>
#include <murtimeline/automation/numeric_text.h>

namespace mur {
namespace {

bool Skip(StringView& TextA, StringView WordA) {
  if (WordA.empty() || !TextA.starts_with(WordA)) return false;
  TextA.remove_prefix(WordA.size());
  return true;
}

}  // namespace

std::optional<double> NumberInText(StringView TextA, const Region& RegionA) {
  String neutral;
  while (!TextA.empty()) {
    if (Skip(TextA, RegionA.decimalSeparator)) {
      neutral += u'.';
    } else if (Skip(TextA, RegionA.groupSeparator)) {
      neutral += u',';
    } else {
      if (TextA.front() == u'.' || TextA.front() == u',') return std::nullopt;
      neutral += TextA.front();
      TextA.remove_prefix(1);
    }
  }
  return ParseNumber(neutral);
}

std::optional<double> NumberInValue(const Variant& ValueA, const Region& RegionA) {
  if (const String* text = ValueA.As<String>()) return NumberInText(*text, RegionA);
  return ValueA.Number();
}

Decimal DigitsOf(const Variant& ValueA, double NumberA) {
  if (const float* single = ValueA.As<float>()) return Decimal::FromSingle(*single);
  if (const std::int64_t* integer = ValueA.As<std::int64_t>()) return Decimal::FromInteger(*integer);
  if (const std::uint64_t* integer = ValueA.As<std::uint64_t>()) return Decimal::FromInteger(*integer);
  return Decimal::FromDouble(NumberA);
}

}  // namespace mur
