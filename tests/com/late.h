#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "tests/com/server.h"

namespace mur::test {

/// What came of a late-bound call.
struct Outcome {
  explicit Outcome(HRESULT ResultA = S_OK) : result(ResultA) {}

  HRESULT result;
  Value value;
  HRESULT code = S_OK;  // with DISP_E_EXCEPTION: the result of the member itself
  std::wstring source, description;
  UINT wrong = UINT(-1);  // which argument was refused

  /// The result that the caller of the member itself would have.
  HRESULT Real() const { return result == DISP_E_EXCEPTION ? code : result; }
};

/// A late-bound call that failed.
class CallFailed : public std::runtime_error {
 public:
  CallFailed(std::wstring_view MemberA, Outcome OutcomeA)
      : std::runtime_error(ToUtf8(MemberA) + ": " + ResultText(OutcomeA.Real()) + " " +
                           ToUtf8(OutcomeA.description)),
        outcome(std::move(OutcomeA)) {}
  Outcome outcome;
};

/// An object as scripts use it: members by name, arguments as they are written. Get, Call and Put throw
/// CallFailed; Try does not.
class Late {
 public:
  Late() = default;
  explicit Late(Ref<IDispatch> ObjectA) : mObject(std::move(ObjectA)) {}
  /// The object in a result, by the very interface that came out.
  explicit Late(const Value& ValueA);

  IDispatch* Pointer() const noexcept { return mObject.Get(); }
  explicit operator bool() const noexcept { return static_cast<bool>(mObject); }
  operator Value() const { return Value(mObject); }
  /// The same object by another of its interfaces.
  template <class Interface>
  Late As() const {
    return Late(Ref<IDispatch>(Query<Interface>(mObject.Get())));
  }
  Ref<IUnknown> Identity() const { return Query<IUnknown>(mObject.Get()); }
  bool IsSame(const Late& OtherA) const { return Identity() == OtherA.Identity(); }

  DISPID IdOf(std::wstring_view MemberA) const;
  Outcome Invoke(DISPID IdA, WORD WayA, const Values& ArgumentsA) const;
  /// `NamesA` stand for the last of the arguments.
  Outcome Try(std::wstring_view MemberA, WORD WayA, const Values& ArgumentsA = {},
              const std::vector<std::wstring>& NamesA = {}) const;

  Value Get(std::wstring_view MemberA, const Values& ArgumentsA = {}) const {
    return Done(MemberA, DISPATCH_PROPERTYGET, ArgumentsA);
  }
  Value Call(std::wstring_view MemberA, const Values& ArgumentsA = {}) const {
    return Done(MemberA, DISPATCH_METHOD, ArgumentsA);
  }
  /// The value is the last argument; objects are put by reference.
  void Put(std::wstring_view MemberA, const Values& ArgumentsA) const;

 private:
  Value Done(std::wstring_view MemberA, WORD WayA, const Values& ArgumentsA) const;

  Ref<IDispatch> mObject;
};

/// A new object of a class of the server, by its default interface.
Late New(REFCLSID ClassA);
inline Late NewTimeline() {
  return New(__uuidof(::CMURTimeline));
}
inline Late NewGroup() {
  return New(__uuidof(::CMURTimelineGroup));
}
inline Late NewScalar() {
  return New(__uuidof(::CMURTimelineScalar));
}
inline Late NewMedia() {
  return New(__uuidof(::CMURTimelineMedia));
}
inline Late NewControl() {
  return New(__uuidof(::MURTimelineRender));
}

}  // namespace mur::test
