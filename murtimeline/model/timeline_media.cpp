#include <cmath>

#include <murtimeline/automation/guard.h>
#include <murtimeline/model/text_dump.h>
#include <murtimeline/model/timeline_media.h>

namespace mur {

void CMURTimelineMedia::SetDuration(double DurationA) {
  const Ref<CMURTimelineMedia> keep(this);
  TellSpanWatchers();
  mDuration = DurationA;
  Report(u"Duration", Duration());
  ReportCutOut();
}

void CMURTimelineMedia::SetMediaFilename(StringView MediaFilenameA) {
  if (mMediaFilename == MediaFilenameA) return;
  mMediaFilename = MediaFilenameA;
  Report(u"MediaFilename", mMediaFilename);
}

void CMURTimelineMedia::SetMediaDuration(double MediaDurationA) {
  if (!Differs(mMediaDuration, MediaDurationA)) return;
  const Ref<CMURTimelineMedia> keep(this);
  TellSpanWatchers();
  mMediaDuration = MediaDurationA;
  if (!mUseClipping) Report(u"Duration", mMediaDuration);
  Report(u"MediaDuration", mMediaDuration);
}

void CMURTimelineMedia::SetCutIn(double CutInA) {
  if (!Differs(mCutIn, CutInA)) return;
  const Ref<CMURTimelineMedia> keep(this);
  mCutIn = CutInA;
  Report(u"CutIn", mCutIn);
  ReportCutOut();
}

double CMURTimelineMedia::CutOut() const {
  if (!mUseClipping) return mMediaDuration;
  const double cutOut = mCutIn + mDuration;
  if (std::isinf(cutOut) && std::isfinite(mCutIn) && std::isfinite(mDuration))
    throw AutomationError(ErrorCode::Overflow);
  return cutOut;
}

void CMURTimelineMedia::SetCutOut(double CutOutA) {
  const double duration = CutOutA - mCutIn;
  if (duration != mDuration) SetDuration(duration);
}

void CMURTimelineMedia::SetUseClipping(bool UseClippingA) {
  if (mUseClipping == UseClippingA) return;
  TellSpanWatchers();
  mUseClipping = UseClippingA;
  Report(u"UseClipping", mUseClipping);
}

void CMURTimelineMedia::Clear() {
  const Ref<CMURTimelineMedia> keep(this);
  ClearCommonState();
  mMediaFilename.clear();
  mMediaDuration = 0;
  mCutIn = 0;
  mUseClipping = false;
}

void CMURTimelineMedia::ReportCutOut() {
  ResumeNext([&] { Report(u"CutOut", CutOut()); });
}

String CMURTimelineMedia::DumpTitle() const {
  return u"CMURTimelineMedia: " + Key() + u"  (Tag: " + Tag() + u") - Media";
}

void CMURTimelineMedia::AppendFurtherLines(String& TextA, StringView IndentA) const {
  AppendDumpLine(TextA, IndentA, u"  MediaFilename  : ", mMediaFilename);
  AppendDumpLine(TextA, IndentA, u"  MediaDuration  : ", SecondsText(mMediaDuration));
  AppendDumpLine(TextA, IndentA, u"  CutIn          : ", SecondsText(CutIn()));
  AppendDumpLine(TextA, IndentA, u"  CutOut         : ", SecondsText(CutOut()));
  AppendDumpLine(TextA, IndentA, u"  UseClipping    : ", BooleanText(mUseClipping));
}

}  // namespace mur
