#pragma once

#include <murtimeline/com/render_times_face.h>

namespace mur::com {

/// The part of the control that is about markers on the time scale.
class RenderMarkersFace : public RenderTimesFace {
 public:
  using RenderTimesFace::RenderTimesFace;

  STDMETHODIMP TimeScaleMarkersClear() noexcept override {
    return Guarded([&] { mControl.TimeScaleMarkersClear(); });
  }
  STDMETHODIMP get_TimeScaleMarkersCount(short* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleMarkersCount(); });
  }
  STDMETHODIMP TimeScaleMarkerAdd(DATE WorldTimeA, BSTR MarkerKeyA, BSTR CaptionA,
                                  VARIANT_BOOL VisibleA) noexcept override {
    return Guarded([&] {
      mControl.TimeScaleMarkerAdd(Date::Unchecked(WorldTimeA), Taken(MarkerKeyA), Taken(CaptionA),
                                  Taken(VisibleA));
    });
  }
  STDMETHODIMP TimeScaleMarkerRemove(VARIANT KeyIndexA) noexcept override {
    return Guarded([&] { mControl.TimeScaleMarkerRemove(Taken(KeyIndexA)); });
  }
  STDMETHODIMP get_TimeScaleMarkerWorldTime(VARIANT KeyIndexA, DATE* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleMarkerWorldTime(Taken(KeyIndexA)); });
  }
  STDMETHODIMP put_TimeScaleMarkerWorldTime(VARIANT KeyIndexA, DATE ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleMarkerWorldTime(Taken(KeyIndexA), Date::Unchecked(ValueA)); });
  }
  STDMETHODIMP get_TimeScaleMarkerCaption(VARIANT KeyIndexA, BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleMarkerCaption(Taken(KeyIndexA)); });
  }
  STDMETHODIMP put_TimeScaleMarkerCaption(VARIANT KeyIndexA, BSTR ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleMarkerCaption(Taken(KeyIndexA), Taken(ValueA)); });
  }
  STDMETHODIMP get_TimeScaleMarkerTag(VARIANT KeyIndexA, BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleMarkerTag(Taken(KeyIndexA)); });
  }
  STDMETHODIMP put_TimeScaleMarkerTag(VARIANT KeyIndexA, BSTR ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleMarkerTag(Taken(KeyIndexA), Taken(ValueA)); });
  }
  STDMETHODIMP get_TimeScaleMarkerUserData(VARIANT KeyIndexA, VARIANT* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleMarkerUserData(Taken(KeyIndexA)); });
  }
  STDMETHODIMP put_TimeScaleMarkerUserData(VARIANT KeyIndexA, VARIANT ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleMarkerUserData(Taken(KeyIndexA), Taken(ValueA)); });
  }
  STDMETHODIMP putref_TimeScaleMarkerUserData(VARIANT KeyIndexA, VARIANT ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleMarkerUserData(Taken(KeyIndexA), Taken(ValueA)); });
  }
  STDMETHODIMP get_TimeScaleMarkerDefinition(VARIANT KeyIndexA, ComMarker** ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleMarkerDefinition(Taken(KeyIndexA)); });
  }
};

}  // namespace mur::com
