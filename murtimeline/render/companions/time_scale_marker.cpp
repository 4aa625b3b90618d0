#include <murtimeline/render/companions/time_scale_marker.h>

namespace mur {

void TimeScaleMarker::SetCaption(StringView CaptionA) {
  mCaption = CaptionA;
  mLink->InvalidateAll();
}

void TimeScaleMarker::SetWorldTime(Date WorldTimeA) {
  mWorldTime = WorldTimeA;
  mLink->InvalidateAll();
}

void TimeScaleMarker::SetVisible(bool VisibleA) {
  mVisible = VisibleA;
  mLink->InvalidateAll();
}

}  // namespace mur
