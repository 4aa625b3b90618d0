#pragma once

#include <deque>
#include <map>
#include <optional>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

/// The depth of a group's subtree, kept right through every change below it, so that a layout need not walk.
///
/// Each group counts its children by their depths and passes a change of its own depth on to the groups that
/// hold it. A child of a host's own class has no known depth, nor has anything above it. A group that
/// contains itself grows past every depth and is then simply too deep.
class MUR_API SubtreeDepth {
 public:
  /// `OwnerA` is told (by OnDepthChanged) when the depth changed.
  class Owner {
   public:
    virtual void OnDepthChanged() = 0;

   protected:
    ~Owner() = default;
  };

  explicit SubtreeDepth(Owner& OwnerA) : mOwner(OwnerA) {}
  SubtreeDepth(const SubtreeDepth&) = delete;
  SubtreeDepth& operator=(const SubtreeDepth&) = delete;

  /// 1 for a group without children; none when it cannot be known. Throws Overflow beyond 32,767.
  std::optional<int> Known() const;

  void AddChild(TimelineNode& ChildA);
  void RemoveChild(TimelineNode& ChildA);

 private:
  static constexpr int kUnknown = 0;
  static constexpr int kTooDeep = 32768;

  struct Change {
    SubtreeDepth* holder;
    int from, to;
  };

  static int DepthOf(TimelineNode& NodeA);
  void CountChild(int DepthA, int ByA);
  int Compute() const;
  void Refresh(std::deque<Change>& PendingA);
  void Spread();

  Owner& mOwner;
  std::map<int, std::size_t> mChildrenByDepth;
  std::vector<SubtreeDepth*> mHolders;  // once for each time that a group holds this one
  int mDepth = 1;
};

}  // namespace mur
