#pragma once

#include <array>
#include <memory>
#include <vector>

#include <murtimeline/com/contract.h>
#include <murtimeline/com/values.h>

namespace mur::com {

/// The connection points of an object with one source interface. It is part of the object; the point has an
/// identity of its own and keeps the object alive.
class EventSource final : public IConnectionPointContainer {
 public:
  /// What the object does when its first listener comes and when its last one goes.
  struct Owner {
    virtual void ListenersCame() = 0;
    virtual void ListenersWent() = 0;

   protected:
    ~Owner() = default;
  };

  /// All of these outlive this object.
  EventSource(IUnknown& ObjectA, const IID& SourceA, Owner& OwnerA);
  ~EventSource();

  /// Tells all listeners, in the order in which they came. Those that came since the event began are not
  /// told, those that went are not told any more; one that fails does not keep the others from hearing.
  /// `ArgumentsA` are borrowed, in the order of the event's parameters.
  template <class... Arguments>
  void Fire(DISPID EventA, Arguments... ArgumentsA) {
    std::array<VARIANT, sizeof...(ArgumentsA)> arguments{ArgumentsA...};
    FireAll(EventA, arguments.data(), arguments.size());
  }
  bool HasListeners() const noexcept { return mListeners && !mListeners->empty(); }
  /// Nobody is told anything until Thaw was called as often.
  void Freeze() noexcept { ++mFrozen; }
  void Thaw() noexcept {
    if (mFrozen > 0) --mFrozen;
  }

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return mObject.AddRef(); }
  STDMETHODIMP_(ULONG) Release() noexcept override { return mObject.Release(); }
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** ResultA) noexcept override;
  STDMETHODIMP FindConnectionPoint(REFIID SourceA, IConnectionPoint** ResultA) noexcept override;

 private:
  struct Listener {
    DWORD cookie;
    Ref<IDispatch> sink;
  };
  using List = std::vector<Listener>;

  class Point final : public IConnectionPoint {
   public:
    explicit Point(EventSource& SourceA) : mSource(SourceA) {}
    STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override { return mSource.AddRef(); }
    STDMETHODIMP_(ULONG) Release() noexcept override { return mSource.Release(); }
    STDMETHODIMP GetConnectionInterface(IID* ResultA) noexcept override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** ResultA) noexcept override;
    STDMETHODIMP Advise(IUnknown* SinkA, DWORD* CookieA) noexcept override;
    STDMETHODIMP Unadvise(DWORD CookieA) noexcept override;
    STDMETHODIMP EnumConnections(IEnumConnections** ResultA) noexcept override;

   private:
    EventSource& mSource;
  };

  void FireAll(DISPID EventA, VARIANT* ArgumentsA, std::size_t CountA);
  bool IsConnected(DWORD CookieA) const noexcept;
  HRESULT Add(IUnknown* SinkA, DWORD* CookieA);
  bool Remove(DWORD CookieA);

  IUnknown& mObject;
  const IID mSourceInterface;
  Owner& mOwner;
  Point mPoint{*this};
  std::shared_ptr<const List> mListeners;  // replaced, never changed: events walk the one they began with
  DWORD mLastCookie = 0;
  unsigned mFrozen = 0;
};

// Borrowed arguments that a listener may change.
VARIANT ByReference(short& ValueA);
VARIANT ByReference(long& ValueA);
VARIANT ByReference(float& ValueA);
VARIANT ByReference(IDispatch*& ValueA);

}  // namespace mur::com
