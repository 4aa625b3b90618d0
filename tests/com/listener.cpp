#include "tests/com/listener.h"

namespace mur::test {
namespace {

// Objects of scripts need not have one that can be read.
std::string KeyOf(const Late& ObjectA) {
  const Outcome key = ObjectA.Try(L"Key", DISPATCH_PROPERTYGET);
  return SUCCEEDED(key.result) ? ToUtf8(key.value.Text()) : "an object";
}

std::string ArgumentText(const VARIANT& ArgumentA) {
  Value value;
  VariantCopyInd(&value, const_cast<VARIANT*>(&ArgumentA));
  if (value.Type() == VT_BSTR) return '"' + ToUtf8(value.Text()) + '"';
  if (value.Type() == VT_DISPATCH) return value.Object() ? KeyOf(Late(value)) : "nothing";
  char text[32];
  std::snprintf(text, sizeof text, "%.15g", value.Number());
  return text;
}

}  // namespace

Ref<IConnectionPoint> PointOf(IUnknown* ObjectA) {
  const auto container = Query<IConnectionPointContainer>(ObjectA);
  const auto information = Query<IProvideClassInfo2>(ObjectA);
  GUID source{};
  Require(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source), "GetGUID");
  IConnectionPoint* found = nullptr;
  Require(container->FindConnectionPoint(source, &found), "FindConnectionPoint");
  return TakeOver(found);
}

Ref<ITypeInfo> EventsOf(IUnknown* ObjectA) {
  IID source{};
  Require(PointOf(ObjectA)->GetConnectionInterface(&source), "GetConnectionInterface");
  return server::TypeOf(source);
}

Ref<Listener> Listener::On(const Late& ObjectA, Handler HandlerA) {
  const Ref<Listener> listener(new Listener);
  listener->handler = std::move(HandlerA);
  listener->mEvents = EventsOf(ObjectA.Pointer());
  listener->mPoint = PointOf(ObjectA.Pointer());
  Require(listener->mPoint->Advise(listener.Get(), &listener->mCookie), "Advise");
  return listener;
}

void Listener::End() {
  const auto point = std::exchange(mPoint, {});
  if (point) point->Unadvise(mCookie);
}

HRESULT Listener::GetTypeInfoCount(UINT* ResultA) noexcept {
  *ResultA = 0;
  return S_OK;
}

HRESULT Listener::Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS* GivenA, VARIANT*, EXCEPINFO*,
                         UINT*) noexcept {
  const Ref<IDispatch> keep(this);
  const std::string name = ToUtf8(NameIn(*mEvents, IdA));
  std::vector<VARIANT> arguments(GivenA->rgvarg, GivenA->rgvarg + GivenA->cArgs);
  std::reverse(arguments.begin(), arguments.end());
  std::string line;
  for (const VARIANT& argument : arguments) line += (line.empty() ? "" : ", ") + ArgumentText(argument);
  heard.push_back(name + "(" + line + ")");
  const Handler told = handler;
  return told ? told(name, arguments) : S_OK;
}

}  // namespace mur::test
