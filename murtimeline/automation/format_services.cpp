#include <cmath>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/format_services.h>
#include <murtimeline/automation/format_value.h>

namespace mur {
namespace {

bool IsAbsent(const Variant& ValueA) {
  return ValueA.Is(VariantKind::Empty) || ValueA.Is(VariantKind::Null);
}

void RefuseWithoutText(const Variant& ValueA) {
  switch (ValueA.Kind()) {
    case VariantKind::Missing:
    case VariantKind::Object:
    case VariantKind::Foreign:
      throw AutomationError(ErrorCode::TypeMismatch);
    default:
      break;
  }
}

}  // namespace

FormatServices::FormatServices(Region RegionA)
    : mRegion(std::move(RegionA)), mDates(mRegion), mPatterns(mRegion.currency) {}

String FormatServices::Format(const Variant& ValueA, StringView PatternA) const {
  RefuseWithoutText(ValueA);
  if (PatternA.empty()) return DefaultText(ValueA);
  const auto prepared = mPatterns.Get(PatternA);
  if (const auto* number = std::get_if<NumberPattern>(prepared.get())) return FormatAsNumber(ValueA, *number);
  if (const auto* date = std::get_if<DatePattern>(prepared.get())) return FormatAsDate(ValueA, *date);
  return WriteText(DefaultText(ValueA), std::get<TextPattern>(*prepared));
}

String FormatServices::DateToText(Date ValueA) const {
  return mDates.WriteGeneral(MomentOf(ValueA));
}

String FormatServices::NumberToText(double ValueA) const {
  if (!std::isfinite(ValueA)) return String(NonFiniteText(ValueA));
  return ShortestText(Decimal::FromDouble(ValueA), mRegion);
}

String FormatServices::DefaultText(const Variant& ValueA) const {
  if (const String* text = ValueA.As<String>()) return *text;
  if (const Date* date = ValueA.As<Date>()) return DateToText(*date);
  if (const bool* truth = ValueA.As<bool>()) return *truth ? u"True" : u"False";
  const auto number = ValueA.Number();
  if (!number) return {};
  if (!std::isfinite(*number)) return String(NonFiniteText(*number));
  return ShortestText(DigitsOf(ValueA, *number), mRegion);
}

String FormatServices::FormatAsNumber(const Variant& ValueA, const NumberPattern& PatternA) const {
  if (IsAbsent(ValueA)) return WriteNull(PatternA, mRegion);
  const auto number = NumberInValue(ValueA, mRegion);
  if (!number) return DefaultText(ValueA);
  if (!std::isfinite(*number)) return String(NonFiniteText(*number));
  return WriteNumber(DigitsOf(ValueA, *number), PatternA, mRegion);
}

String FormatServices::FormatAsDate(const Variant& ValueA, const DatePattern& PatternA) const {
  if (const auto number = NumberInValue(ValueA, mRegion))
    return mDates.Write(MomentOf(Date::Unchecked(*number)), PatternA);
  return DefaultText(ValueA);
}

}  // namespace mur
