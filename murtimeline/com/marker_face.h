#pragma once

#include <murtimeline/com/call.h>
#include <murtimeline/com/dispatcher.h>
#include <murtimeline/render/companions/scroll_interface.h>

namespace mur::com {

/// The record of a marker as hosts see it.
class MarkerFace final : public Face<DispatchOn<ComMarker>> {
 public:
  explicit MarkerFace(ITimeScaleMarker& MarkerA) : Face(MarkerA, CLSID_NULL), mMarker(MarkerA) {}

  STDMETHODIMP get_Key(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMarker.Key(); });
  }
  STDMETHODIMP get_OnScale(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMarker.OnScale(); });
  }
  STDMETHODIMP get_Caption(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMarker.Caption(); });
  }
  STDMETHODIMP put_Caption(BSTR ValueA) noexcept override {
    return Guarded([&] { mMarker.SetCaption(Taken(ValueA)); });
  }
  STDMETHODIMP get_WorldTime(DATE* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMarker.WorldTime(); });
  }
  STDMETHODIMP put_WorldTime(DATE ValueA) noexcept override {
    return Guarded([&] { mMarker.SetWorldTime(Date::Unchecked(ValueA)); });
  }
  STDMETHODIMP get_Visible(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMarker.Visible(); });
  }
  STDMETHODIMP put_Visible(VARIANT_BOOL ValueA) noexcept override {
    return Guarded([&] { mMarker.SetVisible(Taken(ValueA)); });
  }
  STDMETHODIMP get_Tag(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMarker.Tag(); });
  }
  STDMETHODIMP put_Tag(BSTR ValueA) noexcept override {
    return Guarded([&] { mMarker.SetTag(Taken(ValueA)); });
  }
  STDMETHODIMP get_UserData(VARIANT* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMarker.UserData(); });
  }
  STDMETHODIMP put_UserData(VARIANT ValueA) noexcept override {
    return Guarded([&] { mMarker.SetUserData(Taken(ValueA)); });
  }
  STDMETHODIMP putref_UserData(VARIANT ValueA) noexcept override { return put_UserData(ValueA); }

 private:
  ITimeScaleMarker& mMarker;
};

}  // namespace mur::com
