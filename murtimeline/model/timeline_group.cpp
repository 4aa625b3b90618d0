#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/stack.h>
#include <murtimeline/model/text_dump.h>
#include <murtimeline/model/timeline_group.h>

namespace mur {

CMURTimelineGroup::~CMURTimelineGroup() {
  DropChildren();
}

void CMURTimelineGroup::SetGroupType(MURTimelineObjectType GroupTypeA) {
  TellSpanWatchers();
  mGroupType = GroupTypeA;
  Report(u"GroupType", mGroupType);
}

void CMURTimelineGroup::SetDuration(double DurationA) {
  TellSpanWatchers();
  mDuration = DurationA;
  Report(u"Duration", mDuration);
}

std::int16_t CMURTimelineGroup::Count() const {
  return Narrow<std::int16_t>(ChildCount());
}

Ref<IMURTimelineObject> CMURTimelineGroup::Item(const Variant& KeyIndexA) const {
  return mChildren ? mChildren->Find(KeyIndexA) : Ref<IMURTimelineObject>();
}

void CMURTimelineGroup::Add(const Ref<IMURTimelineObject>& ChildA, StringView KeyA) {
  const Ref<CMURTimelineGroup> keep(this);
  const Ref<IMURTimelineObject> child = ChildA;
  ResumeNext([&] {
    RequireStackSpace();
    if (!child || !mChildren) return;
    SharedText key = child->KeyText();  // the very key, more often than not
    if (!IsSameText(key.View(), KeyA)) key = SharedText(KeyA);
    if (!mChildren->Add(child, key)) return;
    mDepth.AddChild(*child);
    child->SetKeyText(key);
    child->SetParent(keep);
    if (const Ref<IMURTLObjectEventSink> sink = EventSink()) sink->ObjectAdopted(keep, child);
  });
}

Ref<IMURTimelineObject> CMURTimelineGroup::Remove(const Variant& KeyIndexA) {
  const Ref<CMURTimelineGroup> keep(this);
  Ref<IMURTimelineObject> result;
  ResumeNext([&] {
    RequireStackSpace();
    const Ref<IMURTimelineObject> child = TakeOut(Selector(KeyIndexA));
    const Ref<IMURTLObjectEventSink> sink = EventSink();
    if (!child || !sink) return;
    sink->ObjectOrphaned(keep, child);
    result = child;
  });
  return result;
}

Ref<IMURTimelineObject> CMURTimelineGroup::TakeOut(const Selector& SelectorA) {
  if (!mChildren) return {};
  Ref<IMURTimelineObject> child = mChildren->Remove(SelectorA);
  if (child) mDepth.RemoveChild(*child);
  return child;
}

void CMURTimelineGroup::DropChildren() {
  while (TakeOut(Selector(std::size_t{1}))) {
  }
}

void CMURTimelineGroup::Clear() {
  const Ref<CMURTimelineGroup> keep(this);
  DropChildren();
  ClearCommonState();
}

void CMURTimelineGroup::Free() {
  const Ref<CMURTimelineGroup> keep(this);
  Clear();
  mChildren = nullptr;
}

void CMURTimelineGroup::TellChildren() {
  const std::size_t count = ChildCount();
  for (std::size_t i = 1; i <= count; ++i)
    ResumeNext([&] {
      if (!mChildren) return;
      if (const Ref<IMURTimelineObject> child = mChildren->FindByPosition(i))
        child->ParentWorldtimeT0Changed();
    });
}

String CMURTimelineGroup::DumpTitle() const {
  return u"CMURTimelineGroup: " + Key() + u"  (Tag: " + Tag() + u") - Group (GroupType: " +
         DecimalText(mGroupType) + u")";
}

void CMURTimelineGroup::AppendFurtherLines(String& TextA, StringView IndentA) const {
  // The line end follows with the children.
  ((TextA += IndentA) += u"  Children       : ") += DecimalText(Count());
}

}  // namespace mur
