#pragma once

#include <dispex.h>

#include <murtimeline/automation/object.h>
#include <murtimeline/win32/platform.h>

// Generated from murtimeline.idl by the build.
#include <murtimeline_contract.h>

namespace mur::com {

// The published interfaces have the names of the core's own classes.
using ComTimelineObject = ::IMURTimelineObject;
using ComEventSink = ::IMURTLObjectEventSink;
using ComTimeline = ::_CMURTimeline;
using ComRenderConfig = ::_CMURTLRenderConfig;
using ComMarker = ::IMURTLTimeScaleMarker;
using ComDragData = ::IMURTLDragData;
using ComRender = ::_MURTimelineRender;

/// The interface of that type on an object; none when it has none.
template <class Interface>
Ref<Interface> Query(IUnknown* ObjectA) {
  void* found = nullptr;
  if (!ObjectA || FAILED(ObjectA->QueryInterface(__uuidof(Interface), &found))) return {};
  Ref<Interface> result(static_cast<Interface*>(found));
  if (result) result->Release();
  return result;
}

/// Takes over a reference that a call handed out.
template <class Interface>
Ref<Interface> TakeOver(Interface* ObjectA) {
  Ref<Interface> result(ObjectA);
  if (ObjectA) ObjectA->Release();
  return result;
}

}  // namespace mur::com
