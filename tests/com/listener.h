#pragma once

#include <functional>

#include "tests/com/counted.h"
#include "tests/com/late.h"

namespace mur::test {

/// The one connection point of an object with events.
Ref<IConnectionPoint> PointOf(IUnknown* ObjectA);
/// The description of the events that an object raises.
Ref<ITypeInfo> EventsOf(IUnknown* ObjectA);

/// Listens to the events of an object from its making to its end, and writes them down as lines:
/// `TLObjectRemoved("A", "tag")`, objects by their keys.
class Listener final : public Counted<IDispatch> {
 public:
  /// Told of every event, with the arguments as they are written; what it gives back is the answer.
  using Handler = std::function<HRESULT(const std::string& EventA, std::vector<VARIANT>& ArgumentsA)>;

  static Ref<Listener> On(const Late& ObjectA, Handler HandlerA = {});
  void End();
  /// Leaves the connection to the object.
  void ForgetPoint() { mPoint = {}; }

  std::vector<std::string> heard;
  Handler handler;

  STDMETHODIMP GetTypeInfoCount(UINT* ResultA) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS* GivenA, VARIANT*, EXCEPINFO*,
                      UINT*) noexcept override;

 private:
  Ref<ITypeInfo> mEvents;
  Ref<IConnectionPoint> mPoint;
  DWORD mCookie = 0;
};

/// Owns a listener: it hears nothing more when its test is over.
class Listening {
 public:
  explicit Listening(const Late& ObjectA, Listener::Handler HandlerA = {})
      : mListener(Listener::On(ObjectA, std::move(HandlerA))) {}
  Listening(const Listening&) = delete;
  Listening& operator=(const Listening&) = delete;
  ~Listening() {
    mListener->handler = {};
    mListener->End();
  }
  Listener* operator->() const noexcept { return mListener.Get(); }

 private:
  Ref<Listener> mListener;
};

}  // namespace mur::test
