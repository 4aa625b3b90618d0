#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/keyed_sequence.h>
#include <murtimeline/render/companions/scroll_interface.h>
#include <murtimeline/render/companions/time_scale_marker.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// The time scale with its cursor and markers. It starts at the present moment with an hour to see, world
/// times as timecode (style 4, no format string), the system's window colours, labels of 9 points, cursor and
/// markers shown, and the cursor at date 0.
class MUR_API MURTimelineScroll final : public ITimelineScroll {
 public:
  /// `HostA` outlives the control.
  explicit MURTimelineScroll(ChildHost& HostA);
  ~MURTimelineScroll() override;

  /// Draws what `DirtyA` (pixels) touches.
  void Paint(Surface& SurfaceA, const RectF& DirtyA);

  Date WorldTimeT0() const override { return mWorldTimeT0; }
  void SetWorldTimeT0(Date WorldTimeA) override;
  double Duration() const override { return mDuration; }
  void SetDuration(double SecondsA) override;
  Date TZero() const override { return mTZero; }
  void SetTZero(Date WorldTimeA) override { Set(mTZero, WorldTimeA); }
  std::int32_t TimesOffsetMode() const override { return mTimesOffsetMode; }
  void SetTimesOffsetMode(std::int32_t ModeA) override { Set(mTimesOffsetMode, ModeA); }
  Date CursorTime() const override { return mCursorTime; }
  /// Keeps the time to the bit; raises nothing.
  void SetCursorTime(Date WorldTimeA) override;
  String TimeScaleFormatString() const override { return mFormatString; }
  void SetTimeScaleFormatString(StringView FormatA) override { Set(mFormatString, String(FormatA)); }
  std::int32_t TimeScaleFormatStyle() const override { return mFormatStyle; }
  void SetTimeScaleFormatStyle(std::int32_t StyleA) override { Set(mFormatStyle, StyleA); }
  OleColor TimeScaleBackColor() const override { return mBackColor; }
  void SetTimeScaleBackColor(OleColor ColorA) override { Set(mBackColor, ColorA); }
  OleColor TimeScaleForeColor() const override { return mForeColor; }
  void SetTimeScaleForeColor(OleColor ColorA) override { Set(mForeColor, ColorA); }
  OleColor TimeScaleMarkerHighlightColor() const override { return mHighlightColor; }
  void SetTimeScaleMarkerHighlightColor(OleColor ColorA) override { Set(mHighlightColor, ColorA); }
  float TimeScaleMarkerHighlightWidth() const override { return mHighlightWidth; }
  void SetTimeScaleMarkerHighlightWidth(float WidthA) override { Set(mHighlightWidth, WidthA); }

  std::int16_t BorderStyle() const override { return mBorderStyle; }
  void SetBorderStyle(std::int16_t StyleA) override { Set(mBorderStyle, StyleA); }
  std::int16_t TickEdge() const override { return mTickEdge; }
  void SetTickEdge(std::int16_t EdgeA) override { Set(mTickEdge, EdgeA); }
  bool ShowCursor() const override { return mShowCursor; }
  void SetShowCursor(bool ShowA) override { Set(mShowCursor, ShowA); }
  std::int32_t LabelFontSize() const override { return mLabelFontSize; }
  void SetLabelFontSize(std::int32_t SizeA) override { Set(mLabelFontSize, SizeA); }
  bool ShowMarkers() const override { return mShowMarkers; }
  void SetShowMarkers(bool ShowA) override { Set(mShowMarkers, ShowA); }

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

  template <class T>
  void Set(T& FieldA, T ValueA) {
    FieldA = std::move(ValueA);
    mLink->InvalidateAll();
  }

  ChildHost& mHost;
  Ref<HostLink> mLink;
  Markers mMarkers;
  String mFormatString;
  Date mWorldTimeT0 = Now();
  Date mTZero = mWorldTimeT0;
  Date mCursorTime;
  double mDuration = 3600;
  std::int32_t mTimesOffsetMode = 0;
  std::int32_t mFormatStyle = 4;
  OleColor mBackColor = 0x80000005;       // window
  OleColor mForeColor = 0x80000008;       // window text
  OleColor mHighlightColor = 0x8000000D;  // highlight
  float mHighlightWidth = 1;
  std::int32_t mLabelFontSize = 9;
  std::int16_t mBorderStyle = 0;
  std::int16_t mTickEdge = 1;
  bool mShowCursor = true;
  bool mShowMarkers = true;
};

}  // namespace mur
