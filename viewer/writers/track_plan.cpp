#include "viewer/writers/track_plan.h"

#include <algorithm>
#include <cmath>

namespace mur::viewer {
namespace {

using Kind = TrackChild::Kind;

// Below this (seconds) a difference of two sums is rounding.
constexpr double kRounding = 1e-9;
// The precision of world times (seconds), with a margin.
constexpr double kClock = 5e-6;

std::string Quoted(const std::string& NameA) {
  return '"' + NameA + '"';
}

double HalfFrame(double RateA) {
  return RateA > 0 ? 0.5 / RateA : kClock;
}

// What moves as one: an item, or several that transitions join.
struct Block {
  std::size_t first = 0, last = 0;  // children
  FrameSum start, length;
  FrameTime move;
  double rate = 0;

  bool IsMoved() const { return move.value != 0; }
  FrameSum NewStart() const { return start + move; }
};

using Gaps = std::vector<std::size_t>;

class Planner {
 public:
  Planner(const std::vector<TrackChild>& ChildrenA, bool KeepsLengthA, const std::string& NameA)
      : mChildren(ChildrenA), mKeepsLength(KeepsLengthA), mName(NameA) {}

  TrackPlan Run() {
    FindBlocks();
    for (Block& block : mBlocks) SetMove(block);
    if (std::ranges::none_of(mBlocks, &Block::IsMoved)) return {};
    Reorder();
    Place();
    return std::move(mPlan);
  }

 private:
  bool Joins(std::size_t IndexA) const { return mChildren[IndexA].kind == Kind::Transition; }

  void FindBlocks() {
    FrameSum at;
    mRuns.emplace_back();
    for (std::size_t i = 0; i < mChildren.size(); ++i) {
      const TrackChild& child = mChildren[i];
      const bool followsBlock = !mBlocks.empty() && mBlocks.back().last + 1 == i;
      if (child.kind == Kind::Gap) {
        mRuns.back().push_back(i);
      } else if (followsBlock && (Joins(i) || Joins(i - 1))) {
        mBlocks.back().last = i;
        mBlocks.back().length += child.length;
      } else {
        mBlocks.push_back({i, i, at, child.length, {}, 0});
        mRuns.emplace_back();
      }
      at += child.length;
    }
    mLength = at;
  }

  // The move of a block in frames of its first item that has a rate.
  void SetMove(Block& BlockA) const {
    const TrackChild* leader = nullptr;
    for (std::size_t i = BlockA.first; i <= BlockA.last; ++i)
      if (mChildren[i].kind == Kind::Item && (!leader || leader->rate == 0)) leader = &mChildren[i];
    BlockA.rate = leader ? leader->rate : 0;
    for (const Kind kind : {Kind::Item, Kind::Transition})
      for (std::size_t i = BlockA.first; i <= BlockA.last; ++i)
        if (mChildren[i].kind == kind) RequireTogether(leader, mChildren[i]);
    if (!leader || std::abs(leader->move) < std::max(kClock, HalfFrame(leader->rate))) return;
    BlockA.move = leader->rate > 0 ? FrameTime{std::round(leader->move * leader->rate), leader->rate}
                                   : FrameTime{leader->move, 1};
  }

  static void RequireTogether(const TrackChild* LeaderA, const TrackChild& ChildA) {
    const double move = LeaderA ? LeaderA->move : 0;
    const double rate = LeaderA && LeaderA->rate > 0 ? LeaderA->rate : ChildA.rate;
    if (std::abs(ChildA.move - move) <= HalfFrame(rate) + kClock) return;
    if (ChildA.kind == Kind::Transition)
      throw NotExpressible("The transition " + Quoted(ChildA.name) +
                           " cannot be moved away from the cut where it stands.");
    throw NotExpressible(Quoted(ChildA.name) + " and " + Quoted(LeaderA->name) +
                         " are joined by a transition and can only be moved together.");
  }

  // Where the order changes, the moved blocks are taken out and put behind all gaps between the two staying
  // ones that they come to lie between.
  void Reorder() {
    const auto earlier = [](const Block& left, const Block& right) {
      return left.NewStart().Seconds() < right.NewStart().Seconds();
    };
    if (std::ranges::is_sorted(mBlocks, earlier)) return;
    std::vector<Gaps> staying(1);
    for (std::size_t i = 0; i < mBlocks.size(); ++i) {
      staying.back().insert(staying.back().end(), mRuns[i].begin(), mRuns[i].end());
      if (!mBlocks[i].IsMoved()) staying.emplace_back();
    }
    staying.back().insert(staying.back().end(), mRuns.back().begin(), mRuns.back().end());
    std::ranges::stable_sort(mBlocks, earlier);
    mRuns.assign(1, staying.front());
    std::size_t next = 0;
    for (const Block& block : mBlocks) mRuns.push_back(block.IsMoved() ? Gaps() : staying[++next]);
  }

  void Place() {
    FrameSum at;
    for (std::size_t i = 0; i < mBlocks.size(); ++i) {
      const Block& block = mBlocks[i];
      FrameSum gap = block.NewStart() - at;
      if (gap.Seconds() < -kRounding) {
        if (gap.Seconds() < -HalfFrame(block.rate) - kRounding) FailOverlap(i);
        gap = FrameSum();
      }
      Fit(mRuns[i], gap, block.rate);
      for (std::size_t child = block.first; child <= block.last; ++child)
        mPlan.steps.push_back({child, {}, 0});
      at += gap;
      at += block.length;
    }
    PlaceEnd(at);
  }

  void PlaceEnd(const FrameSum& EndA) {
    const FrameSum rest = mLength - EndA;
    if (rest.Seconds() < -kRounding) {
      if (mKeepsLength)
        throw NotExpressible(Quoted(mChildren[mBlocks.back().last].name) + " would reach beyond the end of " +
                             Quoted(mName) + ", whose length is fixed.");
      Fit(mRuns.back(), FrameSum(), 0);
    } else if (mKeepsLength || !mRuns.back().empty()) {
      Fit(mRuns.back(), rest, mBlocks.back().rate);
    }
  }

  [[noreturn]] void FailOverlap(std::size_t IndexA) const {
    const std::string& name = mChildren[mBlocks[IndexA].first].name;
    if (IndexA == 0)
      throw NotExpressible(Quoted(name) + " would begin before its track " + Quoted(mName) + " does.");
    throw NotExpressible(Quoted(name) + " would overlap " + Quoted(mChildren[mBlocks[IndexA - 1].last].name) +
                         ".");
  }

  FrameSum LengthOf(const Gaps& GapsA) const {
    FrameSum length;
    for (const std::size_t gap : GapsA) length += mChildren[gap].length;
    return length;
  }

  // Gives a run of gaps a length: the last one grows, or the last ones shrink.
  void Fit(const Gaps& GapsA, const FrameSum& LengthA, double RateA) {
    const std::size_t firstStep = mPlan.steps.size();
    for (const std::size_t gap : GapsA) mPlan.steps.push_back({gap, {}, 0});
    FrameSum missing = LengthA - LengthOf(GapsA);
    for (std::size_t i = mPlan.steps.size(); i-- > firstStep && std::abs(missing.Seconds()) > kRounding;) {
      TrackPlan::Step& step = mPlan.steps[i];
      const TrackChild& gap = mChildren[*step.child];
      if (gap.isFixed) continue;
      const bool isEnough = (gap.length + missing).Seconds() > -kRounding;
      step.frames = isEnough ? Tidy((gap.length + missing).FramesAt(gap.rate)) : 0;
      missing = isEnough ? FrameSum() : missing + gap.length;
    }
    if (missing.Seconds() > kRounding) {
      const double rate = RateA > 0 ? RateA : 1;
      mPlan.steps.push_back({std::nullopt, Tidy(missing.FramesAt(rate)), rate});
    } else if (missing.Seconds() < -kRounding) {
      throw NotExpressible("There is a gap on " + Quoted(mName) + " whose length cannot be changed.");
    }
  }

  static double Tidy(double FramesA) {
    const double whole = std::round(FramesA);
    return std::max(0.0, std::abs(FramesA - whole) < 1e-6 ? whole : FramesA);
  }

  const std::vector<TrackChild>& mChildren;
  bool mKeepsLength;
  const std::string& mName;
  std::vector<Block> mBlocks;
  std::vector<Gaps> mRuns;  // before each block, and behind the last
  FrameSum mLength;
  TrackPlan mPlan;
};

}  // namespace

TrackPlan PlanTrack(const std::vector<TrackChild>& ChildrenA, bool KeepsLengthA,
                    const std::string& TrackNameA) {
  return Planner(ChildrenA, KeepsLengthA, TrackNameA).Run();
}

}  // namespace mur::viewer
