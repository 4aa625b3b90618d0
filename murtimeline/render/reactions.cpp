#include <murtimeline/automation/guard.h>
#include <murtimeline/render/object_walks.h>
#include <murtimeline/render/reactions.h>

namespace mur {

using ObjectRef = Ref<IMURTimelineObject>;

namespace {
// The object of a report; a host's own group or sink may have named none.
IMURTimelineObject& Named(const ObjectRef& ObjectA) {
  if (!ObjectA) throw AutomationError(ErrorCode::ObjectNotSet);
  return *ObjectA;
}
}  // namespace

void TimelineReactions::Attach() {
  Detach();
  if (!mState.timeline) return;
  CMURTimeline& timeline = *mState.timeline;
  Listen(timeline.Cleared, [this] { OnCleared(); });
  Listen(timeline.PropertyChanged, [this](StringView name) { OnPropertyChanged(name); });
  Listen(timeline.TLObjectAdded, [this](const Variant& key) { OnObjectAdded(key); });
  Listen(timeline.TLObjectRemoved, [this](const Variant& key, StringView) { OnObjectRemoved(key); });
  Listen(timeline.TLObjectAdopted,
         [this](const ObjectRef& parent, const ObjectRef& child) { OnObjectAdopted(parent, child); });
  Listen(timeline.TLObjectOrphaned,
         [this](const ObjectRef& parent, const ObjectRef& child) { OnObjectOrphaned(parent, child); });
  Listen(timeline.TLObjectPropertyChanged, [this](const ObjectRef& object, StringView name, const Variant&) {
    OnObjectPropertyChanged(object, name);
  });
}

void TimelineReactions::OnCleared() {
  while (mState.Canvas().GraphicCount() >= 1) mState.Canvas().RemoveGraphic(1);
  mState.Scroller().MarkersClear();
  mAxis.CreateCursorItem();
}

void TimelineReactions::OnPropertyChanged(StringView PropNameA) {
  if (PropNameA == u"Duration" || PropNameA == u"WorldTimeT0") mAxis.Repaint();
}

void TimelineReactions::OnObjectAdded(const Variant& KeyIdxA) {
  if (const ObjectRef object = mState.timeline->Item(KeyIdxA)) mDrawing.AddBar(object);
}

// A key removes the item of that key, a position the canvas's item there, which need not be the model's.
void TimelineReactions::OnObjectRemoved(const Variant& KeyIdxA) {
  ResumeNext([&] { mState.Canvas().RemoveGraphic(KeyIdxA); });
}

void TimelineReactions::OnObjectAdopted(const ObjectRef& ParentA, const ObjectRef& ChildA) {
  ResumeNext([&] {
    const IMURTimelineObject& child = Named(ChildA);
    mDrawing.PlaceObjectItemTree(ChildA, GetNestingLevel(ChildA));
    mDrawing.RefreshCaptions(child);
    mDrawing.RefreshCaptions(Named(ParentA));
  });
}

// The child's bar keeps its row: it is adoption that places, by contract.
void TimelineReactions::OnObjectOrphaned(const ObjectRef& ParentA, const ObjectRef& ChildA) {
  ResumeNext([&] { mDrawing.RefreshCaptions(Named(ChildA)); });
  ResumeNext([&] { mDrawing.RefreshCaptions(Named(ParentA)); });
}

// A group or scalar reports its start as "WorldtimeT0", which is no name of this list: unless the host wants
// it otherwise its bar follows with the next full repaint, by contract.
void TimelineReactions::OnObjectPropertyChanged(const ObjectRef& ObjectA, StringView PropNameA) {
  ResumeNext([&] {
    const IMURTimelineObject& object = Named(ObjectA);
    if (PropNameA == u"Duration")
      mDrawing.UpdateItemSpan(object, object.Duration());
    else if (PropNameA == u"WorldTimeT0" || (mState.followAllStarts && PropNameA == u"WorldtimeT0"))
      mDrawing.UpdateItemLeft(object, object.WorldTimeT0());
    else if (PropNameA == u"Offset" || PropNameA == u"Tag")
      mDrawing.RefreshCaptions(object);
    else if (PropNameA == u"GroupType")
      mDrawing.RefreshColors(object);
    mDrawing.RefreshTooltip(object);
  });
}

}  // namespace mur
