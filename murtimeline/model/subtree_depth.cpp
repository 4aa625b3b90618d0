#include <algorithm>

#include <murtimeline/automation/error.h>
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

std::optional<int> SubtreeDepth::Known() const {
  if (mDepth == kUnknown) return std::nullopt;
  if (mDepth >= kTooDeep) throw AutomationError(ErrorCode::Overflow);
  return mDepth;
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
  const auto entry = mChildrenByDepth.try_emplace(DepthA, 0).first;
  entry->second += static_cast<std::size_t>(ByA);
  if (entry->second == 0) mChildrenByDepth.erase(entry);
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
  if (mChildrenByDepth.empty()) return 1;
  if (mChildrenByDepth.contains(kUnknown)) return kUnknown;
  return std::min(mChildrenByDepth.rbegin()->first + 1, kTooDeep);
}

}  // namespace mur
