#include <algorithm>
#include <cmath>

#include <murtimeline/render/visible_range.h>

namespace mur {
namespace {

constexpr double kStartDuration = 3600;
constexpr std::size_t kMostStages = 64;

Date InRange(double DaysA) {
  return Date::Unchecked(std::isnan(DaysA) ? 0 : std::clamp(DaysA, Date::kLowestDays, Date::kHighestDays));
}

}  // namespace

VisibleRange VisibleRange::Sane() const {
  const double seconds = duration > 0 ? duration : kStartDuration;
  return {InRange(start.Days()), std::clamp(seconds, kShortest, kLongest)};
}

VisibleRange VisibleRange::MovedBy(double SecondsA) const {
  return {InRange(start.Days() + SecondsA / kSecondsPerDay), duration};
}

Date VisibleRange::TimeAt(double ShareA) const {
  const double days = start.Days() + ShareA * duration / kSecondsPerDay;
  return std::isfinite(days) ? Date::Unchecked(days) : Date();
}

double VisibleRange::ShareOf(Date TimeA) const {
  const double share = (TimeA.Days() - start.Days()) * kSecondsPerDay / duration;
  return std::isfinite(share) ? share : 0;
}

int ZoomTrail::StepsOf(double FactorA) {
  constexpr double kMost = 100.0 * kStepsPerDoubling;  // more than all ranges need
  if (!(FactorA > 0)) return 0;
  return static_cast<int>(std::lround(std::clamp(std::log2(FactorA) * kStepsPerDoubling, -kMost, kMost)));
}

VisibleRange ZoomTrail::Zoom(const VisibleRange& CurrentA, int StepsA, double ShareA) {
  if (!(CurrentA == mLast)) TakeUp(CurrentA);
  EnterStage(std::clamp(std::isnan(ShareA) ? 0.5 : ShareA, 0.0, 1.0));
  mRung = Limited(static_cast<long>(mRung) + StepsA);
  const Stage& stage = mStages.back();
  const double gained = DurationOf(stage.rung) - DurationOf(mRung);
  mLast = {InRange(stage.start.Days() + stage.share * gained / kSecondsPerDay), DurationOf(mRung)};
  return mLast;
}

// The ladder stays while the duration is on it: panning only begins another stage.
void ZoomTrail::TakeUp(const VisibleRange& CurrentA) {
  const double before = mLast.duration;
  mLast = CurrentA.Sane();
  mStages.clear();
  if (mLast.duration == before) return;
  mDuration = mLast.duration;
  mRung = 0;
}

void ZoomTrail::EnterStage(double ShareA) {
  while (!mStages.empty() && mStages.back().share != ShareA && mStages.back().rung == mRung)
    mStages.pop_back();
  if (!mStages.empty() && mStages.back().share == ShareA) return;
  if (mStages.size() == kMostStages) mStages.erase(mStages.begin());
  mStages.push_back({mLast.start, mRung, ShareA});
}

int ZoomTrail::Limited(long RungA) const {
  const auto rungsTo = [this](double duration) {
    return kStepsPerDoubling * std::log2(mDuration / duration);
  };
  const long farthest = std::lround(std::ceil(rungsTo(VisibleRange::kLongest)));
  const long closest = std::lround(std::floor(rungsTo(VisibleRange::kShortest)));
  return static_cast<int>(std::clamp(RungA, std::min(farthest, 0L), std::max(closest, 0L)));
}

double ZoomTrail::DurationOf(int RungA) const {
  return mDuration * std::exp2(-static_cast<double>(RungA) / kStepsPerDoubling);
}

}  // namespace mur
