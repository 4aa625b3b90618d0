#include <charconv>
#include <cmath>
#include <string>

#include <murtimeline/automation/numeric_text.h>

namespace mur {
namespace {

constexpr bool IsBlank(char16_t UnitA) {
  return UnitA == u' ' || (UnitA >= u'\t' && UnitA <= u'\r');
}

StringView Trimmed(StringView TextA) {
  while (!TextA.empty() && IsBlank(TextA.front())) TextA.remove_prefix(1);
  while (!TextA.empty() && IsBlank(TextA.back())) TextA.remove_suffix(1);
  return TextA;
}

// ASCII text without grouping commas, the runtime's second exponent letter as the first; none for other text.
std::optional<std::string> Plain(StringView TextA) {
  std::string plain;
  for (const char16_t unit : TextA) {
    if (unit > 0x7E) return std::nullopt;
    if (unit == u',' && plain.find_first_of(".eE") == std::string::npos && !plain.empty()) continue;
    plain += unit == u'd' || unit == u'D' ? 'e' : static_cast<char>(unit);
  }
  return plain;
}

std::optional<double> ParseBased(StringView DigitsA, int BaseA) {
  const std::string digits = ToUtf8(DigitsA);
  unsigned long value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, BaseA);
  if (digits.empty() || error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return static_cast<double>(value);
}

}  // namespace

std::optional<double> ParseNumber(StringView TextA) {
  StringView text = Trimmed(TextA);
  if (text.size() > 2 && text[0] == u'&') {
    if (text[1] == u'H' || text[1] == u'h') return ParseBased(text.substr(2), 16);
    if (text[1] == u'O' || text[1] == u'o') return ParseBased(text.substr(2), 8);
    return std::nullopt;
  }
  const bool negative = !text.empty() && text[0] == u'-';
  if (negative || (!text.empty() && text[0] == u'+')) text = Trimmed(text.substr(1));
  const auto plain = Plain(text);
  if (!plain || plain->empty() || plain->find_first_not_of("0123456789.eE+-") != std::string::npos)
    return std::nullopt;
  double value = 0;
  const char* const end = plain->data() + plain->size();
  const auto result = std::from_chars(plain->data(), end, value);
  if (plain->front() == '-' || result.ptr != end || result.ec != std::errc()) return std::nullopt;
  return negative ? -value : value;
}

std::optional<double> NumericValue(const Variant& ValueA) {
  if (ValueA.Is(VariantKind::Empty)) return 0.0;
  if (ValueA.Is(VariantKind::Date)) return std::nullopt;
  if (const String* text = ValueA.As<String>()) return ParseNumber(*text);
  return ValueA.Number();
}

}  // namespace mur
