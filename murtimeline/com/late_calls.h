#pragma once

#include <initializer_list>

#include <murtimeline/com/values.h>

namespace mur::com {

/// A host's object that can only be called by the names of its members, as scripts write them.
class LateBound {
 public:
  /// Empty when the object takes no late-bound calls.
  explicit LateBound(IUnknown* ObjectA);

  explicit operator bool() const noexcept { return static_cast<bool>(mDispatch); }
  IDispatch* Get() const noexcept { return mDispatch.Get(); }

  /// Calls a member. `ArgumentsA` are borrowed, in the order that they are written. Throws as RequireSuccess.
  OwnVariant Call(const wchar_t* NameA, WORD WayA, std::initializer_list<VARIANT> ArgumentsA = {}) const;
  OwnVariant Read(const wchar_t* NameA, std::initializer_list<VARIANT> ArgumentsA = {}) const {
    return Call(NameA, DISPATCH_PROPERTYGET, ArgumentsA);
  }
  void Do(const wchar_t* NameA, std::initializer_list<VARIANT> ArgumentsA = {}) const {
    Call(NameA, DISPATCH_METHOD, ArgumentsA);
  }
  void Write(const wchar_t* NameA, const VARIANT& ValueA) const {
    Call(NameA, DISPATCH_PROPERTYPUT, {ValueA});
  }
  /// Objects are put by reference, or by value where only that is known.
  void WriteObject(const wchar_t* NameA, IDispatch* ValueA) const;

 private:
  DISPID IdOf(const wchar_t* NameA) const;

  Ref<IDispatch> mDispatch;
  Ref<IDispatchEx> mExtended;  // classes of script engines have nothing else
};

// Borrowed arguments.
VARIANT Argument(BSTR TextA);
VARIANT Argument(IDispatch* ObjectA);
VARIANT Argument(double NumberA, VARTYPE TypeA = VT_R8);
VARIANT Argument(long NumberA, VARTYPE TypeA = VT_I4);

/// A result as that type; throws ComFailure when it is not one.
const VARIANT& As(OwnVariant& ValueA, VARTYPE TypeA);

}  // namespace mur::com
