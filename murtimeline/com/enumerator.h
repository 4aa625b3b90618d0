#pragma once

#include <memory>
#include <vector>

#include <murtimeline/com/call.h>
#include <murtimeline/com/server_life.h>

namespace mur::com {

/// An enumerator of the platform's over anything that can be copied, started again and asked for its next
/// item:
///
///     bool Next(Item* ResultA);        // fills in an item of the caller's; false at the end
///     void Reset();
///     static void Drop(Item& ItemA);   // frees an item that nobody wants
template <class Interface, class Item, class Source>
class Enumerator final : public Interface {
 public:
  explicit Enumerator(Source SourceA) : mSource(std::move(SourceA)) {}

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept override {
    if (!ResultA) return E_POINTER;
    const bool known = InterfaceA == IID_IUnknown || InterfaceA == __uuidof(Interface);
    *ResultA = known ? static_cast<Interface*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++mReferences; }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const ULONG rest = --mReferences;
    if (rest == 0) delete this;
    return rest;
  }

  STDMETHODIMP Next(ULONG CountA, Item* ItemsA, ULONG* FetchedA) noexcept override {
    if (FetchedA) *FetchedA = 0;
    if (!ItemsA || (CountA != 1 && !FetchedA)) return E_POINTER;
    ULONG fetched = 0;
    const HRESULT result = Guarded([&] {
      while (fetched < CountA && mSource.Next(&ItemsA[fetched])) ++fetched;
    });
    if (FAILED(result)) {
      while (fetched > 0) Source::Drop(ItemsA[--fetched]);
      return result;
    }
    if (FetchedA) *FetchedA = fetched;
    return fetched == CountA ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG CountA) noexcept override {
    ULONG skipped = 0;
    const HRESULT result = Guarded([&] {
      Item item{};
      for (; skipped < CountA && mSource.Next(&item); ++skipped) Source::Drop(item);
    });
    return FAILED(result) ? result : skipped == CountA ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() noexcept override {
    return Guarded([&] { mSource.Reset(); });
  }
  STDMETHODIMP Clone(Interface** ResultA) noexcept override {
    if (!ResultA) return E_POINTER;
    *ResultA = nullptr;
    return Guarded([&] { *ResultA = Ref<Interface>(new Enumerator(mSource)).Detach(); });
  }

 private:
  Source mSource;
  ULONG mReferences = 0;
  LiveObject mLive;
};

/// The source of an enumerator over what there was at its beginning.
template <class Item, class Kept>
class Snapshot {
 public:
  explicit Snapshot(std::vector<Kept> ItemsA)
      : mItems(std::make_shared<const std::vector<Kept>>(std::move(ItemsA))) {}

  bool Next(Item* ResultA) {
    if (mNext == mItems->size()) return false;
    *ResultA = (*mItems)[mNext++].Handed();
    return true;
  }
  void Reset() noexcept { mNext = 0; }
  static void Drop(Item& ItemA) noexcept { Kept::Drop(ItemA); }

 private:
  std::shared_ptr<const std::vector<Kept>> mItems;
  std::size_t mNext = 0;
};

}  // namespace mur::com
