#pragma once

#include <murtimeline/automation/error.h>
#include <murtimeline/com/face.h>
#include <murtimeline/com/values.h>
#include <murtimeline/model/timeline.h>

namespace mur::com {

/// The face of one of our objects, made on first use. Throws TypeMismatch for what is not published.
FaceBase& FaceOf(Object& ObjectA);

/// Our own object of that class behind an object, none for none. Throws TypeMismatch for any other.
template <class Class>
Ref<Class> OwnIn(IUnknown* ObjectA) {
  if (!ObjectA) return {};
  const auto own = OwnObjectBehind(ObjectA);
  Ref<Class> result(dynamic_cast<Class*>(own.Get()));
  if (!result) throw AutomationError(ErrorCode::TypeMismatch);
  return result;
}

// A host's own objects come in behind a wrapper, the same for the same object as long as it is held, and go
// out as themselves.
Ref<IMURTimelineObject> ObjectIn(IUnknown* ObjectA);
Ref<IMURTLObjectEventSink> SinkIn(IUnknown* ObjectA);
Ref<ComTimelineObject> ObjectOut(const Ref<IMURTimelineObject>& ObjectA);
Ref<ComEventSink> SinkOut(const Ref<IMURTLObjectEventSink>& SinkA);

/// For late-bound use; a timeline object shows IMURTimelineObject, all else its default interface.
Ref<IDispatch> DispatchOf(const Ref<Object>& ObjectA);

/// An object with that interface for a late-bound argument. Scripts' objects have no published interface:
/// they are given one that calls them by name. None where that is not possible.
Ref<IUnknown> WithInterface(IUnknown* ObjectA, const IID& InterfaceA);
/// Puts a script's own object in the place of what WithInterface gave it.
void ShowHostObject(VARIANT& ValueA);

inline void Give(const Ref<IMURTimelineObject>& ObjectA, ComTimelineObject** ResultA) {
  *ResultA = ObjectOut(ObjectA).Detach();
}
inline void Give(const Ref<IMURTLObjectEventSink>& SinkA, ComEventSink** ResultA) {
  *ResultA = SinkOut(SinkA).Detach();
}
/// One of our objects as the interface that it is published by.
template <class Class, class Interface>
void Give(const Ref<Class>& ObjectA, Interface** ResultA) {
  *ResultA = ObjectA ? Query<Interface>(FaceOf(*ObjectA).Identity()).Detach() : nullptr;
}

}  // namespace mur::com
