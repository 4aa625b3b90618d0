#pragma once

#include <bit>
#include <functional>
#include <map>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <murtimeline/automation/color.h>
#include <murtimeline/automation/error.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/automation/variant.h>

namespace mur::test {

/// Binds the published names of members to C++ members, with the conversions of a late-bound call.
namespace binding {

using Arguments = std::vector<Variant>;
using Call = std::function<Variant(Object&, const Arguments&)>;

struct Member {
  Call invoke;
  Call put;
};
using Members = std::map<std::string, Member>;

/// A value as an argument of type T; throws TypeMismatch where it is none.
template <class T>
T From(const Variant& ValueA) {
  if constexpr (std::is_same_v<T, Variant>) {
    return ValueA;
  } else if constexpr (std::is_same_v<T, String>) {
    if (const String* text = ValueA.As<String>()) return *text;
  } else if constexpr (std::is_same_v<T, bool>) {
    if (const bool* truth = ValueA.As<bool>()) return *truth;
  } else if constexpr (std::is_same_v<T, Date>) {
    if (const auto days = ValueA.Number()) return Date::Unchecked(*days);
  } else if constexpr (std::is_same_v<T, OleColor>) {
    if (const auto number = ValueA.Number()) return std::bit_cast<OleColor>(Narrow<std::int32_t>(*number));
  } else if constexpr (std::is_enum_v<T>) {
    if (const auto number = ValueA.Number()) return static_cast<T>(Narrow<std::int32_t>(*number));
  } else if constexpr (std::is_integral_v<T>) {
    if (const auto number = ValueA.Number()) return Narrow<T>(*number);
  } else if constexpr (std::is_same_v<T, float>) {
    if (const auto number = ValueA.Number()) return NarrowToSingle(*number);
  } else if constexpr (std::is_same_v<T, double>) {
    if (const auto number = ValueA.Number()) return *number;
  } else if (const auto* object = ValueA.As<Ref<Object>>()) {
    using Target = std::remove_reference_t<decltype(*std::declval<T>())>;
    if (!*object) return {};
    if (auto* target = dynamic_cast<Target*>(object->Get())) return T(target);
  }
  throw AutomationError(ErrorCode::TypeMismatch);
}

/// A result as an automation value: a colour is a Long of the same bits.
template <class T>
Variant To(T ValueA) {
  if constexpr (std::is_same_v<T, OleColor>)
    return Variant(std::bit_cast<std::int32_t>(ValueA));
  else
    return Variant(std::move(ValueA));
}

/// How an argument is held during a call: views as texts, references as values.
template <class T>
using Held = std::conditional_t<std::is_same_v<T, StringView>, String, std::remove_cvref_t<T>>;

template <class Class, class Method, class Result, class... Parameters>
Call BindAs(Method MethodA, const Arguments& DefaultsA) {
  return [=](Object& object, const Arguments& given) -> Variant {
    Arguments all = given;
    const std::size_t missing = sizeof...(Parameters) - std::min(sizeof...(Parameters), given.size());
    if (missing > DefaultsA.size() || given.size() > sizeof...(Parameters))
      throw AutomationError(ErrorCode::InvalidProcedureCall);
    all.insert(all.end(), DefaultsA.end() - static_cast<std::ptrdiff_t>(missing), DefaultsA.end());
    return [&]<std::size_t... Index>(std::index_sequence<Index...>)->Variant {
      std::tuple<Held<Parameters>...> held{From<Held<Parameters>>(all[Index])...};
      auto& target = dynamic_cast<Class&>(object);
      if constexpr (std::is_void_v<Result>)
        return (target.*MethodA)(std::get<Index>(held)...), Variant();
      else
        return To((target.*MethodA)(std::get<Index>(held)...));
    }
    (std::index_sequence_for<Parameters...>());
  };
}

template <class Class, class Result, class... Parameters>
Call Bind(Result (Class::*MethodA)(Parameters...), const Arguments& DefaultsA = {}) {
  return BindAs<Class, decltype(MethodA), Result, Parameters...>(MethodA, DefaultsA);
}
template <class Class, class Result, class... Parameters>
Call Bind(Result (Class::*MethodA)(Parameters...) const, const Arguments& DefaultsA = {}) {
  return BindAs<Class, decltype(MethodA), Result, Parameters...>(MethodA, DefaultsA);
}

}  // namespace binding
}  // namespace mur::test
