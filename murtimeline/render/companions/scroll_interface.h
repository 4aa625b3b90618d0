#pragma once

#include <cstdint>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/event.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/automation/variant.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// The record of one marker on the time scale. Every field but the key may be changed at any time.
class MUR_API ITimeScaleMarker : public Object {
 public:
  virtual String Key() const = 0;
  /// Whether it is still on a scale; a record may be kept beyond its removal.
  virtual bool OnScale() const { return true; }
  virtual String Caption() const = 0;
  virtual void SetCaption(StringView CaptionA) = 0;
  virtual Date WorldTime() const = 0;
  virtual void SetWorldTime(Date WorldTimeA) = 0;
  virtual bool Visible() const = 0;
  virtual void SetVisible(bool VisibleA) = 0;
  virtual String Tag() const = 0;
  virtual void SetTag(StringView TagA) = 0;
  virtual Variant UserData() const = 0;
  virtual void SetUserData(const Variant& ValueA) = 0;
};

/// The time scale with its cursor and markers, as the control needs it.
class MUR_API ITimelineScroll : public Object {
 public:
  using PointerEvent = Event<std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/>;
  using MarkerPointerEvent =
      Event<const Variant& /*MarkerKeyIndexA*/, std::int16_t /*Button*/, std::int16_t /*Shift*/>;

  Event<> CursorTimeChanged;
  Event<> CursorTimeChanging;
  Event<> ScaleClick;
  Event<> ScaleDblClick;
  PointerEvent ScaleMouseDown;
  PointerEvent ScaleMouseMove;
  PointerEvent ScaleMouseUp;
  Event<const Variant& /*MarkerKeyIndexA*/> MarkerClick;
  Event<const Variant& /*MarkerKeyIndexA*/> MarkerDblClick;
  MarkerPointerEvent MarkerMouseDown;
  MarkerPointerEvent MarkerMouseMove;
  MarkerPointerEvent MarkerMouseUp;
  /// A new start or duration was written.
  Event<> VisibleRangeChanged;

  virtual Date WorldTimeT0() const = 0;
  virtual void SetWorldTimeT0(Date WorldTimeA) = 0;
  virtual double Duration() const = 0;
  virtual void SetDuration(double SecondsA) = 0;
  virtual Date TZero() const = 0;
  virtual void SetTZero(Date WorldTimeA) = 0;
  /// 0 world times, 1 times relative to TZero; other values are kept and shown as 0.
  virtual std::int32_t TimesOffsetMode() const = 0;
  virtual void SetTimesOffsetMode(std::int32_t ModeA) = 0;
  virtual Date CursorTime() const = 0;
  virtual void SetCursorTime(Date WorldTimeA) = 0;
  virtual String TimeScaleFormatString() const = 0;
  virtual void SetTimeScaleFormatString(StringView FormatA) = 0;
  virtual std::int32_t TimeScaleFormatStyle() const = 0;
  virtual void SetTimeScaleFormatStyle(std::int32_t StyleA) = 0;
  virtual OleColor TimeScaleBackColor() const = 0;
  virtual void SetTimeScaleBackColor(OleColor ColorA) = 0;
  virtual OleColor TimeScaleForeColor() const = 0;
  virtual void SetTimeScaleForeColor(OleColor ColorA) = 0;
  virtual OleColor TimeScaleMarkerHighlightColor() const = 0;
  virtual void SetTimeScaleMarkerHighlightColor(OleColor ColorA) = 0;
  virtual float TimeScaleMarkerHighlightWidth() const = 0;
  virtual void SetTimeScaleMarkerHighlightWidth(float WidthA) = 0;

  // Start-up settings.
  virtual std::int16_t BorderStyle() const = 0;
  virtual void SetBorderStyle(std::int16_t StyleA) = 0;
  /// 1: labels above, ticks towards the canvas.
  virtual std::int16_t TickEdge() const = 0;
  virtual void SetTickEdge(std::int16_t EdgeA) = 0;
  virtual bool ShowCursor() const = 0;
  virtual void SetShowCursor(bool ShowA) = 0;
  /// Points.
  virtual std::int32_t LabelFontSize() const = 0;
  virtual void SetLabelFontSize(std::int32_t SizeA) = 0;
  virtual bool ShowMarkers() const = 0;
  virtual void SetShowMarkers(bool ShowA) = 0;

  virtual void MarkersClear() = 0;
  virtual std::int32_t MarkersCount() const = 0;
  /// A key that exists (letter case ignored) is ignored.
  virtual void MarkerAdd(Date WorldTimeA, StringView MarkerKeyA, StringView CaptionA, bool VisibleA) = 0;
  /// Throws SubscriptOutOfRange when there is no such marker.
  virtual void MarkerRemove(const Variant& KeyIndexA) = 0;
  /// The same record object each time; none when there is no such marker.
  virtual Ref<ITimeScaleMarker> Marker(const Variant& KeyIndexA) const = 0;

  /// Whether the cursor is being dragged along the scale.
  virtual bool IsDragging() const { return false; }
  /// Ends that and puts the cursor back to where it was taken up. False when it was not dragged.
  virtual bool CancelDrag() { return false; }
};

}  // namespace mur
