#include <murtimeline/com/host_object.h>
#include <murtimeline/com/known_hosts.h>
#include <murtimeline/com/objects.h>
#include <murtimeline/com/script_object.h>

namespace mur::com {
namespace {

// A host's object, behind the wrapper that it has or gets.
template <class Wrapper, class Core, class Interface>
Ref<Core> HostIn(IUnknown* ObjectA, Ref<Interface> (*OfScriptA)(IUnknown*)) {
  auto published = Query<Interface>(ObjectA);
  // What we gave a script's object stands for that object.
  const auto given = Query<IScriptObject>(ObjectA);
  const auto identity = Query<IUnknown>(given ? given->Original() : ObjectA);
  if (Object* known = KnownHost(identity.Get(), __uuidof(Interface)))
    return Ref<Core>(static_cast<Wrapper*>(known));
  if (!published) published = OfScriptA(ObjectA);
  if (!published) throw AutomationError(ErrorCode::TypeMismatch);
  const auto wrapper = Make<Wrapper>(std::move(published), identity.Get());
  RememberHost(identity.Get(), __uuidof(Interface), wrapper.Get());
  return wrapper;
}

template <class Wrapper, class Core, class Interface>
Ref<Core> In(IUnknown* ObjectA, Ref<Interface> (*OfScriptA)(IUnknown*)) {
  if (!ObjectA) return {};
  if (!OwnObjectBehind(ObjectA)) return HostIn<Wrapper, Core, Interface>(ObjectA, OfScriptA);
  return OwnIn<Core>(ObjectA);
}

template <class Wrapper, class Interface, class Core>
Ref<Interface> Out(const Ref<Core>& ObjectA) {
  if (!ObjectA) return {};
  if (const auto* host = dynamic_cast<const Wrapper*>(ObjectA.Get())) return host->Published();
  return Query<Interface>(FaceOf(*ObjectA).Identity());
}

// A script's own object in place of what it was given; all else as it is.
Ref<IDispatch> Original(const Ref<IDispatch>& ObjectA) {
  const auto given = Query<IScriptObject>(ObjectA.Get());
  return given ? Ref<IDispatch>(given->Original()) : ObjectA;
}

}  // namespace

Ref<IMURTimelineObject> ObjectIn(IUnknown* ObjectA) {
  return In<HostTimelineObject, IMURTimelineObject>(ObjectA, &ScriptTimelineObject);
}

Ref<IMURTLObjectEventSink> SinkIn(IUnknown* ObjectA) {
  return In<HostEventSink, IMURTLObjectEventSink>(ObjectA, &ScriptEventSink);
}

Ref<ComTimelineObject> ObjectOut(const Ref<IMURTimelineObject>& ObjectA) {
  return Out<HostTimelineObject, ComTimelineObject>(ObjectA);
}

Ref<ComEventSink> SinkOut(const Ref<IMURTLObjectEventSink>& SinkA) {
  return Out<HostEventSink, ComEventSink>(SinkA);
}

Ref<IDispatch> DispatchOf(const Ref<Object>& ObjectA) {
  if (!ObjectA) return {};
  if (auto* object = dynamic_cast<IMURTimelineObject*>(ObjectA.Get()))
    return Original(ObjectOut(Ref<IMURTimelineObject>(object)));
  if (auto* sink = dynamic_cast<HostEventSink*>(ObjectA.Get())) return Original(sink->Published());
  return Query<IDispatch>(FaceOf(*ObjectA).Identity());
}

Ref<IUnknown> WithInterface(IUnknown* ObjectA, const IID& InterfaceA) {
  void* found = nullptr;
  if (SUCCEEDED(ObjectA->QueryInterface(InterfaceA, &found)) && found)
    return TakeOver(static_cast<IUnknown*>(found));
  if (OwnObjectBehind(ObjectA)) return {};
  // By way of the wrapper, so that the same object is given the same interface again.
  if (!LateBound(ObjectA)) return {};
  if (InterfaceA == __uuidof(ComTimelineObject)) return ObjectOut(ObjectIn(ObjectA));
  if (InterfaceA == __uuidof(ComEventSink)) return SinkOut(SinkIn(ObjectA));
  return {};
}

void ShowHostObject(VARIANT& ValueA) {
  if (V_VT(&ValueA) != VT_DISPATCH || !V_DISPATCH(&ValueA)) return;
  const auto given = Query<IScriptObject>(V_DISPATCH(&ValueA));
  if (!given) return;
  IDispatch* original = given->Original();
  original->AddRef();
  V_DISPATCH(&ValueA)->Release();
  V_DISPATCH(&ValueA) = original;
}

}  // namespace mur::com
