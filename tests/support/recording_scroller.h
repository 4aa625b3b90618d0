#pragma once

#include <murtimeline/render/companions/scroll_interface.h>

#include "tests/support/call_log.h"
#include "tests/support/value_text.h"

namespace mur::test {

/// A marker record that notes what is written to it.
class RecordingMarker final : public ITimeScaleMarker {
 public:
  explicit RecordingMarker(CallLog& LogA) : mLog(LogA) {}

  String Key() const override { return u"M"; }
  String Caption() const override { return mLog.Pass("Marker.Caption"), mCaption; }
  void SetCaption(StringView CaptionA) override { Put("Caption", mCaption, String(CaptionA)); }
  Date WorldTime() const override { return mLog.Pass("Marker.WorldTime"), mWorldTime; }
  void SetWorldTime(Date WorldTimeA) override { Put("WorldTime", mWorldTime, WorldTimeA); }
  bool Visible() const override { return mVisible; }
  void SetVisible(bool VisibleA) override { Put("Visible", mVisible, VisibleA); }
  String Tag() const override { return mLog.Pass("Marker.Tag"), mTag; }
  void SetTag(StringView TagA) override { Put("Tag", mTag, String(TagA)); }
  Variant UserData() const override { return mLog.Pass("Marker.UserData"), mUserData; }
  void SetUserData(const Variant& ValueA) override { Put("UserData", mUserData, ValueA); }

 private:
  template <class T>
  void Put(const char* NameA, T& FieldA, T ValueA) {
    mLog.Note(std::string("Marker.") + NameA, " = " + ValueText(ValueA));
    FieldA = std::move(ValueA);
  }

  CallLog& mLog;
  String mCaption, mTag;
  Variant mUserData;
  Date mWorldTime;
  bool mVisible = true;
};

/// A time scale that keeps what is written to it and notes every write and marker call. It has no markers but
/// `marker`, which it gives for every key and position.
class RecordingScroller final : public ITimelineScroll {
 public:
  explicit RecordingScroller(CallLog& LogA) : mLog(LogA) {}

  Date WorldTimeT0() const override { return mWorldTimeT0; }
  void SetWorldTimeT0(Date WorldTimeA) override { Put("WorldTimeT0", mWorldTimeT0, WorldTimeA); }
  double Duration() const override { return mDuration; }
  void SetDuration(double SecondsA) override { Put("Duration", mDuration, SecondsA); }
  Date TZero() const override { return mTZero; }
  void SetTZero(Date WorldTimeA) override { Put("TZero", mTZero, WorldTimeA); }
  std::int32_t TimesOffsetMode() const override {
    return mLog.Pass("Scroller.TimesOffsetMode"), mTimesOffsetMode;
  }
  void SetTimesOffsetMode(std::int32_t ModeA) override { Put("TimesOffsetMode", mTimesOffsetMode, ModeA); }
  Date CursorTime() const override { return mLog.Pass("Scroller.CursorTime"), mCursorTime; }
  void SetCursorTime(Date WorldTimeA) override { Put("CursorTime", mCursorTime, WorldTimeA); }
  String TimeScaleFormatString() const override { return mFormatString; }
  void SetTimeScaleFormatString(StringView FormatA) override {
    Put("TimeScaleFormatString", mFormatString, String(FormatA));
  }
  std::int32_t TimeScaleFormatStyle() const override { return mFormatStyle; }
  void SetTimeScaleFormatStyle(std::int32_t StyleA) override {
    Put("TimeScaleFormatStyle", mFormatStyle, StyleA);
  }
  OleColor TimeScaleBackColor() const override { return mBackColor; }
  void SetTimeScaleBackColor(OleColor ColorA) override { PutColor("TimeScaleBackColor", mBackColor, ColorA); }
  OleColor TimeScaleForeColor() const override { return mForeColor; }
  void SetTimeScaleForeColor(OleColor ColorA) override { PutColor("TimeScaleForeColor", mForeColor, ColorA); }
  OleColor TimeScaleMarkerHighlightColor() const override { return mHighlightColor; }
  void SetTimeScaleMarkerHighlightColor(OleColor ColorA) override {
    PutColor("TimeScaleMarkerHighlightColor", mHighlightColor, ColorA);
  }
  float TimeScaleMarkerHighlightWidth() const override { return mHighlightWidth; }
  void SetTimeScaleMarkerHighlightWidth(float WidthA) override {
    Put("TimeScaleMarkerHighlightWidth", mHighlightWidth, WidthA);
  }

  std::int16_t BorderStyle() const override { return mBorderStyle; }
  void SetBorderStyle(std::int16_t StyleA) override { Put("BorderStyle", mBorderStyle, StyleA); }
  std::int16_t TickEdge() const override { return mTickEdge; }
  void SetTickEdge(std::int16_t EdgeA) override { Put("TickEdge", mTickEdge, EdgeA); }
  bool ShowCursor() const override { return mShowCursor; }
  void SetShowCursor(bool ShowA) override { Put("ShowCursor", mShowCursor, ShowA); }
  std::int32_t LabelFontSize() const override { return mLabelFontSize; }
  void SetLabelFontSize(std::int32_t SizeA) override { Put("LabelFontSize", mLabelFontSize, SizeA); }
  bool ShowMarkers() const override { return mShowMarkers; }
  void SetShowMarkers(bool ShowA) override { Put("ShowMarkers", mShowMarkers, ShowA); }

  void MarkersClear() override { mLog.Note("Scroller.MarkersClear"); }
  std::int32_t MarkersCount() const override { return mLog.Pass("Scroller.MarkersCount"), markersCount; }
  void MarkerAdd(Date WorldTimeA, StringView KeyA, StringView CaptionA, bool VisibleA) override {
    mLog.Note("Scroller.MarkerAdd", " (" + ValueText(WorldTimeA) + ", " + ValueText(KeyA) + ", " +
                                        ValueText(CaptionA) + ", " + (VisibleA ? "true" : "false") + ")");
  }
  void MarkerRemove(const Variant& KeyIndexA) override {
    mLog.Note("Scroller.MarkerRemove", " (" + ValueText(KeyIndexA) + ")");
  }
  Ref<ITimeScaleMarker> Marker(const Variant&) const override { return mLog.Pass("Scroller.Marker"), marker; }

  Ref<ITimeScaleMarker> marker;
  std::int32_t markersCount = 0;

 private:
  template <class T>
  void Put(const char* NameA, T& FieldA, T ValueA) {
    mLog.Note(std::string("Scroller.") + NameA, " = " + ValueText(ValueA));
    FieldA = std::move(ValueA);
  }
  void PutColor(const char* NameA, OleColor& FieldA, OleColor ValueA) {
    mLog.Note(std::string("Scroller.") + NameA, " = " + ColorText(ValueA));
    FieldA = ValueA;
  }

  CallLog& mLog;
  String mFormatString;
  Date mWorldTimeT0, mTZero, mCursorTime;
  double mDuration = 0;
  std::int32_t mTimesOffsetMode = 0, mFormatStyle = 0, mLabelFontSize = 0;
  OleColor mBackColor = 0, mForeColor = 0, mHighlightColor = 0;
  float mHighlightWidth = 0;
  std::int16_t mBorderStyle = -1, mTickEdge = -1;
  bool mShowCursor = false, mShowMarkers = false;
};

}  // namespace mur::test
