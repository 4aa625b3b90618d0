#pragma once

#include <murtimeline/com/render_face_base.h>

namespace mur::com {

/// The part of the control that is about times: its visible range, the cursor, the time scale, the formats.
class RenderTimesFace : public RenderFaceBase {
 public:
  using RenderFaceBase::RenderFaceBase;

  STDMETHODIMP get_WorldTimeT0(DATE* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.WorldTimeT0(); });
  }
  STDMETHODIMP put_WorldTimeT0(DATE ValueA) noexcept override {
    return Guarded([&] { mControl.SetWorldTimeT0(Date::Unchecked(ValueA)); });
  }
  STDMETHODIMP get_Duration(double* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.Duration(); });
  }
  STDMETHODIMP put_Duration(double ValueA) noexcept override {
    return Guarded([&] { mControl.SetDuration(ValueA); });
  }
  STDMETHODIMP get_TZero(DATE* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TZero(); });
  }
  STDMETHODIMP put_TZero(DATE ValueA) noexcept override {
    return Guarded([&] { mControl.SetTZero(Date::Unchecked(ValueA)); });
  }
  STDMETHODIMP get_TimesOffsetMode(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimesOffsetMode(); });
  }
  STDMETHODIMP put_TimesOffsetMode(long ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimesOffsetMode(ValueA); });
  }
  STDMETHODIMP get_CursorTime(DATE* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.CursorTime(); });
  }
  STDMETHODIMP put_CursorTime(DATE ValueA) noexcept override {
    return Guarded([&] { mControl.SetCursorTime(Date::Unchecked(ValueA)); });
  }
  STDMETHODIMP XToWorldTime(float XA, DATE* ResultA) noexcept override {
    return Answer(ResultA, [&] { return mControl.XToWorldTime(XA); });
  }
  STDMETHODIMP get_FormatString(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.FormatString(); });
  }
  STDMETHODIMP put_FormatString(BSTR ValueA) noexcept override {
    return Guarded([&] { mControl.SetFormatString(Taken(ValueA)); });
  }
  STDMETHODIMP get_FormatStyle(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.FormatStyle(); });
  }
  STDMETHODIMP put_FormatStyle(long ValueA) noexcept override {
    return Guarded([&] { mControl.SetFormatStyle(ValueA); });
  }
  STDMETHODIMP get_DurationFormatString(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.DurationFormatString(); });
  }
  STDMETHODIMP put_DurationFormatString(BSTR ValueA) noexcept override {
    return Guarded([&] { mControl.SetDurationFormatString(Taken(ValueA)); });
  }
  STDMETHODIMP get_DurationFormatStyle(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.DurationFormatStyle(); });
  }
  STDMETHODIMP put_DurationFormatStyle(long ValueA) noexcept override {
    return Guarded([&] { mControl.SetDurationFormatStyle(ValueA); });
  }
  STDMETHODIMP get_TimeScaleFormatString(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleFormatString(); });
  }
  STDMETHODIMP put_TimeScaleFormatString(BSTR ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleFormatString(Taken(ValueA)); });
  }
  STDMETHODIMP get_TimeScaleFormatStyle(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleFormatStyle(); });
  }
  STDMETHODIMP put_TimeScaleFormatStyle(long ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleFormatStyle(ValueA); });
  }
  STDMETHODIMP get_TimeScaleBackColor(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleBackColor(); });
  }
  STDMETHODIMP put_TimeScaleBackColor(long ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleBackColor(TakenColor(ValueA)); });
  }
  STDMETHODIMP get_TimeScaleForeColor(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleForeColor(); });
  }
  STDMETHODIMP put_TimeScaleForeColor(long ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleForeColor(TakenColor(ValueA)); });
  }
  STDMETHODIMP get_TimeScaleMarkerHighlightColor(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleMarkerHighlightColor(); });
  }
  STDMETHODIMP put_TimeScaleMarkerHighlightColor(long ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleMarkerHighlightColor(TakenColor(ValueA)); });
  }
  STDMETHODIMP get_TimeScaleMarkerHighlightWidth(float* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleMarkerHighlightWidth(); });
  }
  STDMETHODIMP put_TimeScaleMarkerHighlightWidth(float ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleMarkerHighlightWidth(ValueA); });
  }
  STDMETHODIMP get_TimeScaleHeight(float* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TimeScaleHeight(); });
  }
  STDMETHODIMP put_TimeScaleHeight(float ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeScaleHeight(ValueA); });
  }
  STDMETHODIMP ShowEditor() noexcept override {
    return Guarded([&] { mControl.ShowEditor(); });
  }
};

}  // namespace mur::com
