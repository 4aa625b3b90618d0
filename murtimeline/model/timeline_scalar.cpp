#include <murtimeline/model/timeline_scalar.h>

namespace mur {

void CMURTimelineScalar::SetDuration(double DurationA) {
  TellSpanWatchers();
  mDuration = DurationA;
  Report(u"Duration", mDuration);
}

String CMURTimelineScalar::DumpTitle() const {
  return u"CMURTimelineScalar: " + Key() + u"  (Tag: " + Tag() + u") - Scalar Data";
}

}  // namespace mur
