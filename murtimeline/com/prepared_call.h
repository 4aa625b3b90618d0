#pragma once

#include <array>

#include <murtimeline/com/dispatcher.h>
#include <murtimeline/com/values.h>

namespace mur::com {

/// The arguments of one late-bound call, in the order and of the types that the member has.
class PreparedCall {
 public:
  static constexpr std::size_t kMaxArguments = 8;

  /// Fails as the platform does: a bad count, a missing argument, a wrong type (`WrongA` says which).
  HRESULT Prepare(const Member& MemberA, const DISPPARAMS& GivenA, UINT* WrongA);

  DISPPARAMS& Arguments() noexcept { return mArguments; }

 private:
  // What arguments by reference refer to.
  union Referred {
    IUnknown* object;
    VARIANT_BOOL boolean;
  };

  HRESULT Take(const Member::Parameter& ParameterA, const VARIANT* GivenA, std::size_t PlaceA);
  HRESULT TakeMissing(const Member::Parameter& ParameterA, bool WasNamedA, std::size_t PlaceA);
  HRESULT TakeObject(const Member::Parameter& ParameterA, const VARIANT& GivenA, std::size_t PlaceA);
  HRESULT TakeBoolean(const VARIANT& GivenA, std::size_t PlaceA);
  void ReferToVariant(std::size_t PlaceA);

  std::array<OwnVariant, kMaxArguments> mOwned;
  std::array<Ref<IUnknown>, kMaxArguments> mObjects;
  std::array<Referred, kMaxArguments> mReferred{};
  std::array<VARIANT, kMaxArguments> mPassed;  // in the platform's order, last argument first; borrowed
  DISPID mValueName = DISPID_PROPERTYPUT;
  DISPPARAMS mArguments{};
};

}  // namespace mur::com
