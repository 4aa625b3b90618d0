#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <type_traits>
#include <variant>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// A value of a host platform that the core only carries and gives back unchanged (arrays, decimals, ...).
class MUR_API ForeignValue : public Object {
 public:
  /// The number in it, where it is one (a decimal, a currency).
  virtual std::optional<double> Number() const noexcept { return std::nullopt; }
};

/// The order is that of the alternatives in Variant's storage.
enum class VariantKind {
  Empty,
  Null,
  Missing,
  Boolean,
  Int8,
  UInt8,
  Int16,
  UInt16,
  Int32,
  UInt32,
  Int64,
  UInt64,
  Single,
  Double,
  Date,
  Text,
  Object,
  Foreign,
};

/// An automation variant.
class MUR_API Variant {
 public:
  Variant() = default;

  template <class T>
  requires std::integral<T> || std::floating_point<T> Variant(T ValueA) : mValue(ValueA) {}
  template <class T>
  requires std::is_enum_v<T> Variant(T ValueA) : mValue(static_cast<std::int32_t>(ValueA)) {}
  Variant(Date ValueA) : mValue(ValueA) {}
  Variant(String ValueA) : mValue(std::move(ValueA)) {}
  Variant(StringView ValueA) : mValue(String(ValueA)) {}
  Variant(const char16_t* ValueA) : mValue(String(ValueA)) {}
  template <std::derived_from<Object> T>
  requires(!std::derived_from<T, ForeignValue>) Variant(Ref<T> ValueA)
      : mValue(Ref<Object>(std::move(ValueA))) {}
  template <std::derived_from<ForeignValue> T>
  Variant(Ref<T> ValueA) : mValue(Ref<ForeignValue>(std::move(ValueA))) {}

  static Variant Null();
  /// An optional argument that was left out.
  static Variant Missing();

  VariantKind Kind() const noexcept { return static_cast<VariantKind>(mValue.index()); }
  bool Is(VariantKind KindA) const noexcept { return Kind() == KindA; }

  /// The value when it is of this very type, else null.
  template <class T>
  const T* As() const noexcept {
    return std::get_if<T>(&mValue);
  }

  /// The number in a Boolean (true is -1), integer, floating, Date or foreign value; none for other kinds.
  std::optional<double> Number() const noexcept;

  friend bool operator==(const Variant&, const Variant&) = default;

 private:
  struct EmptyValue {
    friend bool operator==(EmptyValue, EmptyValue) = default;
  };
  struct NullValue {
    friend bool operator==(NullValue, NullValue) = default;
  };
  struct MissingValue {
    friend bool operator==(MissingValue, MissingValue) = default;
  };
  std::variant<EmptyValue, NullValue, MissingValue, bool, std::int8_t, std::uint8_t, std::int16_t,
               std::uint16_t, std::int32_t, std::uint32_t, std::int64_t, std::uint64_t, float, double, Date,
               String, Ref<Object>, Ref<ForeignValue>>
      mValue;
};

/// The name of a kind, for logs and error texts.
MUR_API const char* KindName(VariantKind KindA);

}  // namespace mur
