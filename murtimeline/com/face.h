#pragma once

#include <murtimeline/com/own_interfaces.h>
#include <murtimeline/com/server_life.h>

namespace mur::com {

/// An object of the core as hosts see it: one identity for as long as the object lives, whoever holds it. It
/// belongs to the object, and hosts' references together count as one of the object's, so that a host that
/// releases too often takes nothing away from others than hosts.
class FaceBase : public HostFace, public IOwnFace, public ISupportErrorInfo, public IProvideClassInfo2 {
 public:
  FaceBase(Object& ObjectA, const CLSID& ClassA) : mObject(ObjectA), mClass(ClassA) {}

  IUnknown* Identity() noexcept { return static_cast<IOwnFace*>(this); }

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override;
  STDMETHODIMP_(ULONG) Release() noexcept override;

  Object* OwnObject(const void* ServerA) noexcept override;
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID InterfaceA) noexcept override;
  STDMETHODIMP GetClassInfo(ITypeInfo** ResultA) noexcept override;
  STDMETHODIMP GetGUID(DWORD KindA, GUID* ResultA) noexcept override;

 protected:
  /// The published interface of that type, not counted; none when there is none.
  virtual void* Published(REFIID InterfaceA) noexcept = 0;
  /// Further interfaces of the platform's, not counted.
  virtual IUnknown* Further(REFIID /*InterfaceA*/) noexcept { return nullptr; }
  /// The source interface of the class, GUID_NULL without events.
  virtual IID Source() const noexcept { return IID{}; }

  Object& mObject;

 private:
  const CLSID mClass;  // CLSID_NULL for what is no class of the library
  ULONG mHostReferences = 0;
  LiveObject mLive;
};

/// A face with the published interfaces; the first one is its default interface.
template <class... Interfaces>
class Face : public FaceBase, public Interfaces... {
 public:
  using FaceBase::FaceBase;

  // One for all of the bases.
  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept final {
    return FaceBase::QueryInterface(InterfaceA, ResultA);
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept final { return FaceBase::AddRef(); }
  STDMETHODIMP_(ULONG) Release() noexcept final { return FaceBase::Release(); }

 protected:
  void* Published(REFIID InterfaceA) noexcept override {
    void* found = nullptr;
    // IDispatch is asked of the default interface, which comes first.
    (void)((found = Interfaces::Offer(InterfaceA)) || ...);
    return found;
  }
};

/// The object of this server behind an object; none behind a host's own.
Ref<Object> OwnObjectBehind(IUnknown* ObjectA);

}  // namespace mur::com
