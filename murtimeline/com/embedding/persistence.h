#pragma once

#include <murtimeline/com/embedding/part.h>

namespace mur::com {

/// How a control begins. It keeps nothing between one life and the next, so that each begins with the start
/// values; but a container must not begin it both ways.
class Beginning {
 public:
  HRESULT InitNew() { return Begin(Way::New); }
  HRESULT Load() { return Begin(Way::Loaded); }
  bool HasBegun() const noexcept { return mWay != Way::None; }

 private:
  enum class Way { None, New, Loaded };

  // The same way again, by another container say, changes nothing.
  HRESULT Begin(Way WayA) {
    if (mWay != Way::None && mWay != WayA) return E_UNEXPECTED;
    mWay = WayA;
    return S_OK;
  }

  Way mWay = Way::None;
};

/// A way to save the control: what all of them have in common.
template <class Interface, class... Ancestors>
class PersistPart : public Part<Interface, Ancestors...> {
 public:
  PersistPart(IUnknown& IdentityA, Beginning& BeginningA)
      : Part<Interface, Ancestors...>(IdentityA), mBeginning(BeginningA) {}

  STDMETHODIMP GetClassID(CLSID* ResultA) noexcept final {
    return Put(ResultA, __uuidof(::MURTimelineRender));
  }

 protected:
  ~PersistPart() = default;

  /// The body of a method that reads from, or writes to, what the control has no use for.
  HRESULT LoadFrom(const IUnknown* PlaceA) const { return PlaceA ? mBeginning.Load() : E_POINTER; }
  static HRESULT SaveTo(const IUnknown* PlaceA) { return PlaceA ? S_OK : E_POINTER; }

  Beginning& mBeginning;
};

/// In a stream: as no bytes.
class PersistStream final : public PersistPart<IPersistStreamInit, IPersistStream, IPersist> {
 public:
  using PersistPart::PersistPart;

  STDMETHODIMP IsDirty() noexcept override { return S_FALSE; }
  STDMETHODIMP Load(IStream* StreamA) noexcept override { return LoadFrom(StreamA); }
  STDMETHODIMP Save(IStream* StreamA, BOOL) noexcept override { return SaveTo(StreamA); }
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* ResultA) noexcept override {
    return Put(ResultA, ULARGE_INTEGER{});
  }
  STDMETHODIMP InitNew() noexcept override { return mBeginning.InitNew(); }
};

/// In a bag of properties: as none.
class PersistPropertyBag final : public PersistPart<IPersistPropertyBag> {
 public:
  using PersistPart::PersistPart;

  STDMETHODIMP InitNew() noexcept override { return mBeginning.InitNew(); }
  STDMETHODIMP Load(IPropertyBag* BagA, IErrorLog*) noexcept override { return LoadFrom(BagA); }
  STDMETHODIMP Save(IPropertyBag* BagA, BOOL, BOOL) noexcept override { return SaveTo(BagA); }
};

/// In a storage: as nothing in it. The storage is not held; what is held to is the protocol.
class PersistStorage final : public PersistPart<IPersistStorage> {
 public:
  using PersistPart::PersistPart;

  STDMETHODIMP IsDirty() noexcept override { return S_FALSE; }
  STDMETHODIMP InitNew(IStorage* StorageA) noexcept override;
  STDMETHODIMP Load(IStorage* StorageA) noexcept override;
  STDMETHODIMP Save(IStorage* StorageA, BOOL SameA) noexcept override;
  STDMETHODIMP SaveCompleted(IStorage* StorageA) noexcept override;
  STDMETHODIMP HandsOffStorage() noexcept override;

 private:
  enum class State { None, Normal, NoScribble, HandsOff };

  HRESULT Take(HRESULT BegunA);

  State mState = State::None;
};

}  // namespace mur::com
