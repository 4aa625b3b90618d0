#pragma once

#include <murtimeline/automation/collection.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/model/subtree_depth.h>
#include <murtimeline/model/timeline_object.h>

namespace mur {

/// The container of a time line: an extent of its own and a keyed, ordered collection of children, groups
/// included. A group sets itself as its children's parent, never as their sink.
class MUR_API CMURTimelineGroup final : public TimelineObject, private SubtreeDepth::Owner {
 public:
  CMURTimelineGroup() = default;

  MURTimelineObjectType ObjectType() const override { return murtlotGroup; }
  MURTimelineObjectType GroupType() const override { return mGroupType; }
  void SetGroupType(MURTimelineObjectType GroupTypeA) override;
  double Duration() const override { return mDuration; }
  /// Stores and reports always; the children are not touched.
  void SetDuration(double DurationA) override;

  std::int16_t Count() const override;
  std::size_t ChildCount() const override { return mChildren ? mChildren->Count() : 0; }
  Ref<IMURTimelineObject> Item(const Variant& KeyIndexA) const override;
  /// Takes a child in under a key and reports its adoption; a key that exists changes nothing. The child is
  /// not taken out of an earlier parent and its offset is not recomputed.
  void Add(const Ref<IMURTimelineObject>& ChildA, StringView KeyA) override;
  /// Lets a child go, which keeps its key and parent. The result is the child only when its orphaning was
  /// reported: a group without a sink removes the child but gives none.
  Ref<IMURTimelineObject> Remove(const Variant& KeyIndexA) override;

  /// Drops the children without freeing them; the group type is kept.
  void Clear() override;
  /// Afterwards the group has no children and takes none.
  void Free() override;

  std::optional<int> KnownSubtreeDepth() const override { return mDepth.Known(); }
  SubtreeDepth* DepthNode() override { return &mDepth; }

 private:
  using Children = Collection<IMURTimelineObject>;

  ~CMURTimelineGroup() override;

  bool Differs(double StoredA, double NewA) const override { return StoredA != NewA; }
  StringView WorldTimeReportName() const override { return u"WorldtimeT0"; }
  void TellChildren() override;
  String DumpTitle() const override;
  StringView DumpParentLabel() const override { return u"    Parent       : "; }
  StringView DumpWorldTimeLabel() const override { return u"  WorldtimeT0    : "; }
  void AppendFurtherLines(String& TextA, StringView IndentA) const override;
  void OnDepthChanged() override { MoveShapeRevisionIfWatched(); }

  Ref<IMURTimelineObject> TakeOut(const Selector& SelectorA);
  void DropChildren();

  MURTimelineObjectType mGroupType = murtlotUnknown;
  Ref<Children> mChildren = Make<Children>();  // none after Free
  SubtreeDepth mDepth{*this};
};

}  // namespace mur
