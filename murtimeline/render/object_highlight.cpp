#include <murtimeline/automation/guard.h>
#include <murtimeline/render/object_highlight.h>

namespace mur {

void ObjectHighlight::RefreshAtCursor(bool ForceA) {
  if ((!ForceA && !mState.autoHighlightObjects) || !mState.timeline) return;
  ResumeNext([&] {
    mDrawing.RecolorBars([&](const IMURTimelineObject& object) {
      return mState.autoHighlightObjects && object.SpansTime(mState.cursorTime, true);
    });
  });
}

void ObjectHighlight::ShowSelection(StringView KeyA) {
  if (!mState.timeline) return;
  ResumeNext([&] {
    mDrawing.RecolorBars(
        [&](const IMURTimelineObject& object) { return IsSameText(object.KeyText().View(), KeyA); });
  });
}

}  // namespace mur
