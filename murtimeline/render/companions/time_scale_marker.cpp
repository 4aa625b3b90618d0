#include <utility>

#include <murtimeline/render/companions/time_scale_marker.h>

namespace mur {

void TimeScaleMarker::Join(Ref<MarkerBoard> BoardA) {
  mBoard = std::move(BoardA);
  mBoard->Put(*this);
}

void TimeScaleMarker::Leave() {
  if (const Ref<MarkerBoard> board = std::exchange(mBoard, nullptr)) board->Take(*this);
}

String TimeScaleMarker::HoverText() const {
  if (mCaption.empty() || mTag.empty() || mTag == mCaption) return mCaption.empty() ? mTag : mCaption;
  return mCaption + u'\n' + mTag;
}

void TimeScaleMarker::SetCaption(StringView CaptionA) {
  mCaption = CaptionA;
  mCaptionWidth = -1;
  if (mBoard) mBoard->Changed();
}

void TimeScaleMarker::SetWorldTime(Date WorldTimeA) {
  mWorldTime = WorldTimeA;
  if (mBoard) mBoard->Put(*this);
}

void TimeScaleMarker::SetVisible(bool VisibleA) {
  mVisible = VisibleA;
  if (mBoard) mBoard->Put(*this);
}

// What was kept there may run its host's code at its end; the record is up to date then.
void TimeScaleMarker::SetUserData(const Variant& ValueA) {
  const Variant old = std::exchange(mUserData, ValueA);
}

}  // namespace mur
