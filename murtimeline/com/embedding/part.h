#pragma once

#include <murtimeline/com/guard.h>

namespace mur::com {

/// A part of the control that containers ask for by an interface of the platform's.
class AnyPart {
 public:
  /// The interface of that type, not counted; none when the part does not offer it.
  virtual IUnknown* Offer(REFIID InterfaceA) noexcept = 0;

 protected:
  ~AnyPart() = default;
};

/// A part that offers one interface and what that is built on. Its identity is the control's.
template <class Interface, class... Ancestors>
class Part : public Interface, public AnyPart {
 public:
  Part(const Part&) = delete;
  Part& operator=(const Part&) = delete;

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept final {
    return mIdentity.QueryInterface(InterfaceA, ResultA);
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept final { return mIdentity.AddRef(); }
  STDMETHODIMP_(ULONG) Release() noexcept final { return mIdentity.Release(); }

  IUnknown* Offer(REFIID InterfaceA) noexcept final {
    const bool isMeant =
        InterfaceA == __uuidof(Interface) || ((InterfaceA == __uuidof(Ancestors)) || ... || false);
    return isMeant ? static_cast<Interface*>(this) : nullptr;
  }

 protected:
  explicit Part(IUnknown& IdentityA) : mIdentity(IdentityA) {}
  ~Part() = default;

  /// Runs the body of a method, which gives its result. The container may let its last reference go in it.
  template <class Body>
  HRESULT Run(Body&& BodyA) const noexcept {
    const Ref<IUnknown> keep(&mIdentity);
    HRESULT result = S_OK;
    const HRESULT guarded = Guarded([&] { result = BodyA(); });
    return FAILED(guarded) ? guarded : result;
  }

 private:
  IUnknown& mIdentity;
};

/// The body of a method that gives a plain value.
template <class Value>
HRESULT Put(Value* ResultA, const Value& ValueA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = ValueA;
  return S_OK;
}

/// The body of a method that gives an object, or none.
template <class Interface>
HRESULT PutObject(Interface** ResultA, const Ref<Interface>& ObjectA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = Ref<Interface>(ObjectA).Detach();
  return S_OK;
}

}  // namespace mur::com
