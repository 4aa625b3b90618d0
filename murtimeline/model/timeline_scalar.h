#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_leaf.h>

namespace mur {

/// A plain span of time: it starts at a world time and lasts a number of seconds.
class MUR_API CMURTimelineScalar final : public TimelineLeaf {
 public:
  MURTimelineObjectType ObjectType() const override { return murtlotScalar; }
  double Duration() const override { return mDuration; }
  /// Stores and reports always.
  void SetDuration(double DurationA) override;
  void Clear() override { ClearCommonState(); }

 private:
  StringView WorldTimeReportName() const override { return u"WorldtimeT0"; }
  String DumpTitle() const override;
  StringView DumpWorldTimeLabel() const override { return u"  WorldtimeT0    : "; }
};

}  // namespace mur
