#include <algorithm>

#include <murtimeline/com/enumerator.h>
#include <murtimeline/com/event_source.h>

namespace mur::com {
namespace {

struct KeptPoint {
  Ref<IConnectionPoint> point;
  IConnectionPoint* Handed() const { return Ref(point).Detach(); }
  static void Drop(IConnectionPoint* PointA) noexcept { PointA->Release(); }
};
using PointEnumerator =
    Enumerator<IEnumConnectionPoints, IConnectionPoint*, Snapshot<IConnectionPoint*, KeptPoint>>;

struct KeptConnection {
  Ref<IUnknown> sink;
  DWORD cookie;
  CONNECTDATA Handed() const { return {Ref(sink).Detach(), cookie}; }
  static void Drop(const CONNECTDATA& DataA) noexcept { DataA.pUnk->Release(); }
};
using ConnectionEnumerator = Enumerator<IEnumConnections, CONNECTDATA, Snapshot<CONNECTDATA, KeptConnection>>;

// The listener's process or thread has gone; it will not come back.
bool HasVanished(HRESULT ResultA) {
  return ResultA == RPC_E_DISCONNECTED || ResultA == CO_E_OBJNOTCONNECTED ||
         ResultA == RPC_E_SERVER_DIED_DNE || ResultA == HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE);
}

}  // namespace

EventSource::EventSource(IUnknown& ObjectA, const IID& SourceA, Owner& OwnerA)
    : mObject(ObjectA), mSourceInterface(SourceA), mOwner(OwnerA) {}

EventSource::~EventSource() = default;

void EventSource::FireAll(DISPID EventA, VARIANT* ArgumentsA, std::size_t CountA) {
  const auto listeners = mListeners;
  if (!listeners || mFrozen > 0) return;
  // A listener may let the last reference to the object go.
  const Ref<IUnknown> keep(&mObject);
  std::reverse(ArgumentsA, ArgumentsA + CountA);
  for (const Listener& listener : *listeners) {
    if (mListeners != listeners && !IsConnected(listener.cookie)) continue;
    DISPPARAMS arguments{ArgumentsA, nullptr, static_cast<UINT>(CountA), 0};
    OwnVariant ignored;
    const HRESULT result = listener.sink->Invoke(EventA, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                                 &arguments, &ignored, nullptr, nullptr);
    if (HasVanished(result)) Remove(listener.cookie);
  }
}

bool EventSource::IsConnected(DWORD CookieA) const noexcept {
  return mListeners && std::any_of(mListeners->begin(), mListeners->end(),
                                   [&](const Listener& ListenerA) { return ListenerA.cookie == CookieA; });
}

HRESULT EventSource::Add(IUnknown* SinkA, DWORD* CookieA) {
  void* found = nullptr;
  if (FAILED(SinkA->QueryInterface(mSourceInterface, &found)) &&
      FAILED(SinkA->QueryInterface(IID_IDispatch, &found)))
    return CONNECT_E_CANNOTCONNECT;
  auto sink = TakeOver(static_cast<IDispatch*>(found));
  auto listeners = mListeners ? std::make_shared<List>(*mListeners) : std::make_shared<List>();
  listeners->push_back({++mLastCookie, std::move(sink)});
  const bool isFirst = !HasListeners();
  mListeners = std::move(listeners);
  *CookieA = mLastCookie;
  if (isFirst) mOwner.ListenersCame();
  return S_OK;
}

bool EventSource::Remove(DWORD CookieA) {
  if (!IsConnected(CookieA)) return false;
  // Kept to the end: letting a listener go may call back.
  const auto before = mListeners;
  auto rest = std::make_shared<List>();
  std::copy_if(before->begin(), before->end(), std::back_inserter(*rest),
               [&](const Listener& ListenerA) { return ListenerA.cookie != CookieA; });
  mListeners = std::move(rest);
  if (!HasListeners()) mOwner.ListenersWent();
  return true;
}

HRESULT EventSource::QueryInterface(REFIID InterfaceA, void** ResultA) noexcept {
  return mObject.QueryInterface(InterfaceA, ResultA);
}

HRESULT EventSource::EnumConnectionPoints(IEnumConnectionPoints** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  return Guarded([&] {
    std::vector<KeptPoint> points{{Ref<IConnectionPoint>(&mPoint)}};
    *ResultA = Ref<IEnumConnectionPoints>(new PointEnumerator(Snapshot<IConnectionPoint*, KeptPoint>(points)))
                   .Detach();
  });
}

HRESULT EventSource::FindConnectionPoint(REFIID SourceA, IConnectionPoint** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  if (SourceA != mSourceInterface) return CONNECT_E_NOCONNECTION;
  *ResultA = Ref<IConnectionPoint>(&mPoint).Detach();
  return S_OK;
}

HRESULT EventSource::Point::QueryInterface(REFIID InterfaceA, void** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  const bool known = InterfaceA == IID_IUnknown || InterfaceA == IID_IConnectionPoint;
  *ResultA = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT EventSource::Point::GetConnectionInterface(IID* ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = mSource.mSourceInterface;
  return S_OK;
}

HRESULT EventSource::Point::GetConnectionPointContainer(IConnectionPointContainer** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = Ref<IConnectionPointContainer>(&mSource).Detach();
  return S_OK;
}

HRESULT EventSource::Point::Advise(IUnknown* SinkA, DWORD* CookieA) noexcept {
  if (!SinkA || !CookieA) return E_POINTER;
  *CookieA = 0;
  HRESULT result = S_OK;
  const HRESULT guarded = Guarded([&] { result = mSource.Add(SinkA, CookieA); });
  return FAILED(guarded) ? guarded : result;
}

HRESULT EventSource::Point::Unadvise(DWORD CookieA) noexcept {
  bool removed = false;
  const Ref<IUnknown> keep(&mSource.mObject);
  const HRESULT guarded = Guarded([&] { removed = mSource.Remove(CookieA); });
  return FAILED(guarded) ? guarded : removed ? S_OK : CONNECT_E_NOCONNECTION;
}

HRESULT EventSource::Point::EnumConnections(IEnumConnections** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  return Guarded([&] {
    std::vector<KeptConnection> connections;
    if (mSource.mListeners)
      for (const Listener& listener : *mSource.mListeners)
        connections.push_back({listener.sink, listener.cookie});
    *ResultA =
        Ref<IEnumConnections>(new ConnectionEnumerator(Snapshot<CONNECTDATA, KeptConnection>(connections)))
            .Detach();
  });
}

VARIANT ByReference(short& ValueA) {
  VARIANT value;
  V_VT(&value) = VT_I2 | VT_BYREF;
  V_I2REF(&value) = &ValueA;
  return value;
}

VARIANT ByReference(long& ValueA) {
  VARIANT value;
  V_VT(&value) = VT_I4 | VT_BYREF;
  V_I4REF(&value) = &ValueA;
  return value;
}

VARIANT ByReference(float& ValueA) {
  VARIANT value;
  V_VT(&value) = VT_R4 | VT_BYREF;
  V_R4REF(&value) = &ValueA;
  return value;
}

VARIANT ByReference(IDispatch*& ValueA) {
  VARIANT value;
  V_VT(&value) = VT_DISPATCH | VT_BYREF;
  V_DISPATCHREF(&value) = &ValueA;
  return value;
}

}  // namespace mur::com
