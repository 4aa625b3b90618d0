#include <algorithm>

#include <murtimeline/model/subtree_depth.h>

namespace mur {

namespace {
thread_local std::uint64_t tShapeRevision = 1;
}

std::uint64_t ShapeRevision() noexcept {
  return tShapeRevision;
}

void MoveShapeRevision() noexcept {
  ++tShapeRevision;
}

void SubtreeDepth::AddChild(TimelineNode& ChildA) {
  if (SubtreeDepth* child = ChildA.DepthNode()) child->mHolders.push_back(this);
  CountChild(DepthOf(ChildA), +1);
  if (Compute() != mDepth) Spread();
}

void SubtreeDepth::RemoveChild(TimelineNode& ChildA) {
  if (SubtreeDepth* child = ChildA.DepthNode()) {
    const auto link = std::find(child->mHolders.rbegin(), child->mHolders.rend(), this);
    child->mHolders.erase(std::next(link).base());
  }
  CountChild(DepthOf(ChildA), -1);
  if (Compute() != mDepth) Spread();
}

int SubtreeDepth::DepthOf(TimelineNode& NodeA) {
  if (const SubtreeDepth* node = NodeA.DepthNode()) return node->mDepth;
  return NodeA.KnownSubtreeDepth().value_or(kUnknown);
}

void SubtreeDepth::CountChild(int DepthA, int ByA) {
  auto level =
      std::find_if(mLevels.begin(), mLevels.end(), [=](Level other) { return other.depth == DepthA; });
  if (level == mLevels.end()) level = mLevels.insert(level, {DepthA, 0});
  level->children += static_cast<std::size_t>(ByA);
  if (level->children > 0) return;
  *level = mLevels.back();
  mLevels.pop_back();
}

// Changes are taken in the order in which they arose, so that each link's depths follow one another.
void SubtreeDepth::Spread() {
  std::deque<Change> pending;
  Refresh(pending);
  for (; !pending.empty(); pending.pop_front()) {
    const auto [holder, from, to] = pending.front();
    holder->CountChild(from, -1);
    holder->CountChild(to, +1);
    holder->Refresh(pending);
  }
}

void SubtreeDepth::Refresh(std::deque<Change>& PendingA) {
  const int old = mDepth;
  mDepth = Compute();
  if (mDepth == old) return;
  mOwner.OnDepthChanged();
  for (SubtreeDepth* above : mHolders) PendingA.push_back({above, old, mDepth});
}

int SubtreeDepth::Compute() const {
  int deepest = 0;
  for (const Level& level : mLevels) {
    if (level.depth == kUnknown) return kUnknown;
    deepest = std::max(deepest, level.depth);
  }
  return deepest < kDeepestKept ? deepest + 1 : kUnknown;
}

}  // namespace mur
