#include <murtimeline/automation/variant.h>

namespace mur {

Variant Variant::Null() {
  Variant variant;
  variant.mValue = NullValue();
  return variant;
}

Variant Variant::Missing() {
  Variant variant;
  variant.mValue = MissingValue();
  return variant;
}

std::optional<double> Variant::Number() const noexcept {
  return std::visit(
      [](const auto& value) -> std::optional<double> {
        using T = std::remove_cvref_t<decltype(value)>;
        if constexpr (std::is_same_v<T, bool>) return value ? -1.0 : 0.0;
        if constexpr (std::is_arithmetic_v<T>) return static_cast<double>(value);
        if constexpr (std::is_same_v<T, Date>) return value.Days();
        if constexpr (std::is_same_v<T, Ref<ForeignValue>>) return value ? value->Number() : std::nullopt;
        return std::nullopt;
      },
      mValue);
}

const char* KindName(VariantKind KindA) {
  static constexpr const char* kNames[] = {"Empty",  "Null",   "Missing", "Boolean", "Int8",   "UInt8",
                                           "Int16",  "UInt16", "Int32",   "UInt32",  "Int64",  "UInt64",
                                           "Single", "Double", "Date",    "Text",    "Object", "Foreign"};
  return kNames[static_cast<int>(KindA)];
}

}  // namespace mur
