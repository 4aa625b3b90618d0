#pragma once

#include <murtimeline/com/embedding/ole_object.h>
#include <murtimeline/com/embedding/view_object.h>
#include <murtimeline/com/event_source.h>

namespace mur::com {

/// All that a container says and asks when it loads a control, in one call.
class QuickActivation final : public Part<IQuickActivate> {
 public:
  /// All of them outlive this object.
  QuickActivation(IUnknown& IdentityA, win32::TimelineWindow& WindowA, OleObject& ObjectA, ViewObject& ViewA,
                  EventSource& EventsA)
      : Part(IdentityA), mWindow(WindowA), mObject(ObjectA), mView(ViewA), mEvents(EventsA) {}

  STDMETHODIMP QuickActivate(QACONTAINER* ContainerA, QACONTROL* ResultA) noexcept override;
  STDMETHODIMP SetContentExtent(LPSIZEL SizeA) noexcept override {
    return mObject.SetExtent(DVASPECT_CONTENT, SizeA);
  }
  STDMETHODIMP GetContentExtent(LPSIZEL ResultA) noexcept override {
    return mObject.GetExtent(DVASPECT_CONTENT, ResultA);
  }

 private:
  DWORD Connect(IUnknown* SinkA);

  win32::TimelineWindow& mWindow;
  OleObject& mObject;
  ViewObject& mView;
  EventSource& mEvents;
};

}  // namespace mur::com
