#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_leaf.h>

namespace mur {

/// A recording in a file, placed whole or clipped to a section of it. All times are seconds.
///
///     media      |-----------------------------|   MediaDuration
///     section          |===========|               stored duration
///                |CutIn|
///                |     CutOut      |               always derived: cut-in + stored duration
///
/// Without clipping the object stands for the whole media: Duration and CutOut read MediaDuration, CutIn
/// reads 0, and the section is kept unseen. Nothing constrains the values.
class MUR_API CMURTimelineMedia final : public TimelineLeaf {
 public:
  MURTimelineObjectType ObjectType() const override { return murtlotMedia; }
  double Duration() const override { return mUseClipping ? mDuration : mMediaDuration; }
  /// Stores the section's length; reports "Duration" and "CutOut" as they read, always.
  void SetDuration(double DurationA) override;

  String MediaFilename() const { return mMediaFilename; }
  /// Acts on a text that differs, letter case included.
  void SetMediaFilename(StringView MediaFilenameA);
  double MediaDuration() const { return mMediaDuration; }
  /// Acts on a value that differs; reports "Duration" too while clipping is off.
  void SetMediaDuration(double MediaDurationA);
  double CutIn() const { return mUseClipping ? mCutIn : 0; }
  /// Moves the section; its length stays, so the cut-out moves along. Reports the stored cut-in.
  void SetCutIn(double CutInA);
  /// Throws Overflow when cut-in and length add up to more than a double holds.
  double CutOut() const;
  /// Changes the section's length, from the stored cut-in even while clipping is off.
  void SetCutOut(double CutOutA);
  bool UseClipping() const { return mUseClipping; }
  /// Reports "UseClipping" alone, although Duration, CutIn and CutOut then read differently.
  void SetUseClipping(bool UseClippingA);

  void Clear() override;

 private:
  StringView WorldTimeReportName() const override { return u"WorldTimeT0"; }
  String DumpTitle() const override;
  StringView DumpWorldTimeLabel() const override { return u"  WorldTimeT0    : "; }
  void AppendFurtherLines(String& TextA, StringView IndentA) const override;
  void ReportCutOut();

  String mMediaFilename;
  double mMediaDuration = 0;
  double mCutIn = 0;
  bool mUseClipping = false;
};

}  // namespace mur
