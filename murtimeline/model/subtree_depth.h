#pragma once

#include <deque>
#include <optional>
#include <vector>

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

/// The depth of a group's subtree, kept right through every change below it, so that a layout need not walk.
///
/// Each group counts its children by their depths and passes a change of its own depth on to the groups that
/// hold it. A child of a host's own class has no known depth, nor has anything above it; nor has what is
/// deeper than kDeepestKept, so that a change spreads over so many levels at most, and a group that contains
/// itself is soon found to be one of those.
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

  static constexpr int kDeepestKept = 1000;

  /// 1 for a group without children; none when it is not known.
  std::optional<int> Known() const { return mDepth == kUnknown ? std::nullopt : std::optional(mDepth); }

  void AddChild(TimelineNode& ChildA);
  void RemoveChild(TimelineNode& ChildA);

 private:
  static constexpr int kUnknown = 0;

  struct Level {
    int depth;
    std::size_t children;
  };
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
  std::vector<Level> mLevels;           // the depths that occur among the children, in no order: they are few
  std::vector<SubtreeDepth*> mHolders;  // once for each time that a group holds this one
  int mDepth = 1;
};

}  // namespace mur
