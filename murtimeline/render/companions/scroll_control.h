#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/keyed_sequence.h>
#include <murtimeline/render/companions/scale_flags.h>
#include <murtimeline/render/companions/scale_pointer.h>
#include <murtimeline/render/companions/scale_settings.h>
#include <murtimeline/render/companions/scroll_interface.h>
#include <murtimeline/render/companions/time_scale_marker.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// The time scale with its cursor and markers. It starts at the present moment with an hour to see, world
/// times as timecode (style 4, no format string), the system's window colours, labels of 9 points, cursor and
/// markers shown, and the cursor at date 0.
class MUR_API MURTimelineScroll final : public ITimelineScroll, public PointerTarget {
 public:
  /// `HostA` outlives the control.
  explicit MURTimelineScroll(ChildHost& HostA);
  ~MURTimelineScroll() override;

  /// Draws what `DirtyA` (pixels) touches.
  void Paint(Surface& SurfaceA, const RectF& DirtyA);
  /// The marker whose flag is at a point (pixels).
  Ref<TimeScaleMarker> MarkerAt(PointF PointA) const { return Ref<TimeScaleMarker>(mFlags.MarkerAt(PointA)); }
  /// What to show while the pointer rests there: the caption and tag of a marker, else the host's own text.
  String ToolTipAt(PointF PointA) const;
  /// Where around a point that text holds; empty for all of the scale.
  RectF ToolTipAreaAt(PointF PointA) const { return mFlags.AreaAt(PointA); }
  /// The scale, in pixels.
  RectF Area() const;
  /// Whether a marker is on this scale still.
  bool Holds(const TimeScaleMarker& MarkerA) const { return MarkerA.IsOn(*mBoard); }
  ChildHost& Host() const { return mHost; }
  const ScaleSettings& Settings() const { return mSettings; }

  // The pointer: see ScalePointer.
  void PointerPressed(const PointerInput& InputA) override { mPointer.Press(InputA, false); }
  void PointerDoublePressed(const PointerInput& InputA) override { mPointer.Press(InputA, true); }
  void PointerMoved(const PointerInput& InputA) override { mPointer.Move(InputA); }
  void PointerReleased(const PointerInput& InputA) override { mPointer.Release(InputA); }
  void PointerLeft() override { mPointer.Leave(); }
  void PointerLost() override { mPointer.Lose(); }
  bool IsDragging() const override { return mPointer.IsDragging(); }
  bool CancelDrag() override { return mPointer.Cancel(); }

  Date WorldTimeT0() const override { return mSettings.worldTimeT0; }
  void SetWorldTimeT0(Date WorldTimeA) override;
  double Duration() const override { return mSettings.duration; }
  void SetDuration(double SecondsA) override;
  Date TZero() const override { return mSettings.tZero; }
  void SetTZero(Date WorldTimeA) override { Set(mSettings.tZero, WorldTimeA); }
  std::int32_t TimesOffsetMode() const override { return mSettings.timesOffsetMode; }
  void SetTimesOffsetMode(std::int32_t ModeA) override { Set(mSettings.timesOffsetMode, ModeA); }
  Date CursorTime() const override { return mSettings.cursorTime; }
  /// Keeps the time to the bit; raises nothing.
  void SetCursorTime(Date WorldTimeA) override;
  String TimeScaleFormatString() const override { return mSettings.formatString; }
  void SetTimeScaleFormatString(StringView FormatA) override { Set(mSettings.formatString, String(FormatA)); }
  std::int32_t TimeScaleFormatStyle() const override { return mSettings.formatStyle; }
  void SetTimeScaleFormatStyle(std::int32_t StyleA) override { Set(mSettings.formatStyle, StyleA); }
  OleColor TimeScaleBackColor() const override { return mSettings.backColor; }
  void SetTimeScaleBackColor(OleColor ColorA) override { Set(mSettings.backColor, ColorA); }
  OleColor TimeScaleForeColor() const override { return mSettings.foreColor; }
  void SetTimeScaleForeColor(OleColor ColorA) override { Set(mSettings.foreColor, ColorA); }
  OleColor TimeScaleMarkerHighlightColor() const override { return mSettings.highlightColor; }
  void SetTimeScaleMarkerHighlightColor(OleColor ColorA) override { Set(mSettings.highlightColor, ColorA); }
  float TimeScaleMarkerHighlightWidth() const override { return mSettings.highlightWidth; }
  void SetTimeScaleMarkerHighlightWidth(float WidthA) override { Set(mSettings.highlightWidth, WidthA); }

  std::int16_t BorderStyle() const override { return mSettings.borderStyle; }
  void SetBorderStyle(std::int16_t StyleA) override { Set(mSettings.borderStyle, StyleA); }
  std::int16_t TickEdge() const override { return mSettings.tickEdge; }
  void SetTickEdge(std::int16_t EdgeA) override { Set(mSettings.tickEdge, EdgeA); }
  bool ShowCursor() const override { return mSettings.showCursor; }
  void SetShowCursor(bool ShowA) override { Set(mSettings.showCursor, ShowA); }
  std::int32_t LabelFontSize() const override { return mSettings.labelFontSize; }
  void SetLabelFontSize(std::int32_t SizeA) override { Set(mSettings.labelFontSize, SizeA); }
  bool ShowMarkers() const override { return mSettings.showMarkers; }
  void SetShowMarkers(bool ShowA) override { Set(mSettings.showMarkers, ShowA); }

  void MarkersClear() override;
  std::int32_t MarkersCount() const override;
  void MarkerAdd(Date WorldTimeA, StringView MarkerKeyA, StringView CaptionA, bool VisibleA) override;
  void MarkerRemove(const Variant& KeyIndexA) override;
  Ref<ITimeScaleMarker> Marker(const Variant& KeyIndexA) const override;

 private:
  struct KeyOf {
    StringView operator()(const Ref<TimeScaleMarker>& MarkerA) const { return MarkerA->KeyView(); }
  };
  using Markers = KeyedSequence<Ref<TimeScaleMarker>, KeyOf>;

  void MarkersLeave(const Markers& MarkersA);
  void InvalidateCursor() const;

  template <class T>
  void Set(T& FieldA, T ValueA) {
    FieldA = std::move(ValueA);
    mBoard->Changed();
  }

  ChildHost& mHost;
  Ref<MarkerBoard> mBoard;
  Markers mMarkers;
  ScaleSettings mSettings;
  ScaleFlags mFlags{mHost, mSettings, *mBoard};
  ScalePointer mPointer{*this};
};

}  // namespace mur
