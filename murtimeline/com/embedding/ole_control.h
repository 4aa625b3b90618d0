#pragma once

#include <murtimeline/com/embedding/container.h>
#include <murtimeline/com/embedding/part.h>
#include <murtimeline/com/event_source.h>

namespace mur::com {

/// What makes the object a control.
class OleControl final : public Part<IOleControl> {
 public:
  /// All of them outlive this object.
  OleControl(IUnknown& IdentityA, win32::TimelineWindow& WindowA, const Container& ContainerA,
             EventSource& EventsA)
      : Part(IdentityA), mWindow(WindowA), mContainer(ContainerA), mEvents(EventsA) {}

  /// It has no mnemonics; Enter clicks the current bar.
  STDMETHODIMP GetControlInfo(CONTROLINFO* ResultA) noexcept override {
    return Put(ResultA, CONTROLINFO{sizeof(CONTROLINFO), nullptr, 0, CTRLINFO_EATS_RETURN});
  }
  STDMETHODIMP OnMnemonic(MSG*) noexcept override { return S_OK; }
  STDMETHODIMP OnAmbientPropertyChange(DISPID) noexcept override {
    return Run([&] {
      mWindow.SetAmbience(AmbienceOf(mContainer.Site().Get()));
      return S_OK;
    });
  }
  /// What happens meanwhile is not told later.
  STDMETHODIMP FreezeEvents(BOOL FreezeA) noexcept override {
    if (FreezeA)
      mEvents.Freeze();
    else
      mEvents.Thaw();
    return S_OK;
  }

 private:
  win32::TimelineWindow& mWindow;
  const Container& mContainer;
  EventSource& mEvents;
};

}  // namespace mur::com
