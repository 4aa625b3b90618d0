#include <charconv>
#include <string>

#include <murtimeline/automation/format_value.h>

namespace mur {
namespace {

StringView Trimmed(StringView TextA) {
  const std::size_t first = TextA.find_first_not_of(u" \t");
  if (first == StringView::npos) return {};
  return TextA.substr(first, TextA.find_last_not_of(u" \t") - first + 1);
}

bool Skip(StringView& TextA, StringView WordA) {
  if (WordA.empty() || !TextA.starts_with(WordA)) return false;
  TextA.remove_prefix(WordA.size());
  return true;
}

// The text as the C locale writes it, an empty one where a unit cannot be part of a number.
std::string Neutral(StringView TextA, const Region& RegionA) {
  std::string neutral;
  bool hasPoint = false;
  while (!TextA.empty()) {
    if (!hasPoint && Skip(TextA, RegionA.groupSeparator)) continue;
    if (Skip(TextA, RegionA.decimalSeparator)) {
      neutral += '.';
      hasPoint = true;
      continue;
    }
    if (StringView(u"0123456789eE+-").find(TextA.front()) == StringView::npos) return {};
    neutral += static_cast<char>(TextA.front());
    TextA.remove_prefix(1);
  }
  return neutral;
}

}  // namespace

std::optional<double> NumberInText(StringView TextA, const Region& RegionA) {
  StringView unsignedText = Trimmed(TextA);
  const bool negative = unsignedText.starts_with(u'-');
  if (negative || unsignedText.starts_with(u'+')) unsignedText.remove_prefix(1);
  const std::string neutral = Neutral(unsignedText, RegionA);
  if (neutral.empty() || neutral.front() == '-') return std::nullopt;
  double number = 0;
  const char* const end = neutral.data() + neutral.size();
  const auto result = std::from_chars(neutral.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return negative ? -number : number;
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
