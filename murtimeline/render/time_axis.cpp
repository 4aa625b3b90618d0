#include <cmath>

#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/stack.h>
#include <murtimeline/render/time_axis.h>

namespace mur {
namespace {
constexpr int kPixels = 3;  // a scale mode
constexpr float kCursorWidth = 5;
}  // namespace

void TimeAxis::Repaint() {
  ResumeNext([&] {
    ITimeMapper& mapper = *mState.companions.timeMapper;
    const double start = mState.worldTimeT0.Seconds();
    mapper.SetTimeRange(start, start + mState.duration);
    mapper.SetPixelRange(0, mState.Canvas().DrawingWidth());
  });
  if (mState.timeline) ResumeNext([&] { mDrawing.ReplaceAllBars(); });
  SetCursorTime(mState.cursorTime);
}

void TimeAxis::SetCursorTime(Date TimeA) {
  ResumeNext([&] {
    RequireStackSpace();
    mState.cursorTime = TimeA;
    mState.Scroller().SetCursorTime(TimeA);
    const Ref<ICanvasItem> cursor = mState.Canvas().GraphicByKey(kCursorKey);
    if (!cursor) return;
    const float height = NarrowToSingle(mState.Canvas().DrawingHeight());
    const float x = mState.companions.timeMapper->SecondsToX(TimeA.Seconds());
    cursor->Move(x - kCursorWidth / 2, 0.0f, kCursorWidth, height);
    mCursorTimeChange.Raise(mState.cursorTime);
  });
}

void TimeAxis::PutCursorTime(Date TimeA) {
  if (TimeA < mState.cursorTime || TimeA > mState.cursorTime) SetCursorTime(TimeA);
}

void TimeAxis::CreateCursorItem() {
  ResumeNext([&] {
    mState.Canvas().SetScaleMode(kPixels);
    if (mState.Canvas().AddGraphic(kCursorKey, kCursorItem)) SetCursorTime(Now());
  });
}

Date TimeAxis::XToWorldTime(float XA) const {
  double seconds = 0;
  ResumeNext([&] { seconds = mState.companions.timeMapper->XToSeconds(XA); });
  if (!std::isfinite(seconds)) throw AutomationError(ErrorCode::Overflow);
  const Date time = Date::Unchecked(seconds / kSecondsPerDay);
  return time.InRange() ? time : Date();
}

}  // namespace mur
