#include <algorithm>
#include <utility>

#include <murtimeline/automation/guard.h>
#include <murtimeline/render/object_highlight.h>

namespace mur {

void ObjectHighlight::RefreshAtCursor(bool ForceA) {
  if ((!ForceA && !mState.autoHighlightObjects) || !mState.timeline) return;
  ResumeNext([&] {
    if (!ForceA && RecolorChangedAtCursor()) return;
    RecolorAll([&](const IMURTimelineObject& object, const std::optional<TimeSpan>& span) {
      if (!mState.autoHighlightObjects) return false;
      return span ? span->Contains(mState.cursorTime) : object.SpansTime(mState.cursorTime, true);
    });
    mCursorTime = mState.autoHighlightObjects ? std::optional(mState.cursorTime) : std::nullopt;
  });
}

void ObjectHighlight::ShowSelection(StringView KeyA) {
  if (!mState.timeline) return;
  ResumeNext([&] {
    if (RecolorChangedTo(KeyA)) return;
    RecolorAll([&](const IMURTimelineObject& object, const std::optional<TimeSpan>&) {
      bool isSelected = false;  // what cannot tell its key is not
      ResumeNext([&] { isSelected = IsSameText(object.KeyText().View(), KeyA); });
      return isSelected;
    });
    mCursorTime.reset();
  });
}

// What differs between the members decides about each of them alone as long as no two share a bar: each must
// be the one that its key finds.
template <class IsHighlighted>
void ObjectHighlight::RecolorAll(IsHighlighted&& IsHighlightedA) {
  Forget();
  mConfigs.Forget();
  const Ref<CMURTimeline> timeline = mState.timeline;
  const std::uint64_t pass = ++mPass;
  Watch(*timeline);
  bool remembers = mTimeline != nullptr;
  HighlightMemory memory = std::exchange(mMemory, {});
  memory.Clear();
  if (remembers) memory.Reserve(timeline->MemberCount());
  auto objects = timeline->NewEnum();
  while (const ObjectRef object = objects.Next()) {
    const auto span = remembers ? object->WatchSpan(*timeline) : std::nullopt;
    const CMURTLRenderConfig& config = ConfigOf(*object);
    const bool highlighted = IsHighlightedA(*object, span);
    SetBackColor(*object, highlighted ? config.HighlightColor() : config.BackColor());
    remembers = span && timeline->ItemByKey(object->KeyText().View()) == object;
    if (remembers) memory.Add(*object, *span, highlighted);
  }
  mRemembers = remembers && pass == mPass && IsUndisturbed() && mConfigs.AreUnchanged();
  if (!mRemembers) return Forget();
  mMemory = std::move(memory);
}

bool ObjectHighlight::RecolorChangedAtCursor() {
  if (!CatchUp()) return false;
  const Date time = mState.cursorTime;
  if (mCursorTime == time) {
    for (const std::size_t index : mChangedAt) mMemory.SetHighlighted(index, mMemory.Contains(index, time));
    return WriteChanged();
  }
  mCursorTime = time;
  return WriteFlipped([&](std::size_t word) { return mMemory.ContainingWord(word, time); });
}

bool ObjectHighlight::RecolorChangedTo(StringView KeyA) {
  if (!CatchUp()) return false;
  mCursorTime.reset();
  const Ref<IMURTimelineObject> selected = mState.timeline->ItemByKey(KeyA);
  std::size_t index = mMemory.Count();
  if (selected && IsSameText(selected->KeyText().View(), KeyA)) index = mState.timeline->PositionOf(KeyA) - 1;
  return WriteFlipped([&](std::size_t word) {
    const bool isThere = word == index / HighlightMemory::kWordBits && index < mMemory.Count();
    return isThere ? HighlightMemory::Word{1} << (index % HighlightMemory::kWordBits) : 0;
  });
}

template <class WordOf>
bool ObjectHighlight::WriteFlipped(WordOf&& WordOfA) {
  return mMemory.Highlight(WordOfA, [&](std::size_t index) { return Write(index); }) && WriteChanged();
}

// Whether a change was one of the colour does not show in the memory: all that changed are written.
bool ObjectHighlight::WriteChanged() {
  return std::ranges::all_of(mChangedAt, [this](std::size_t index) { return Write(index); });
}

// False when somebody interfered, so that the members may be others.
bool ObjectHighlight::Write(std::size_t IndexA) {
  const IMURTimelineObject& object = mMemory.ObjectAt(IndexA);
  const std::uint64_t pass = mPass;
  const CMURTLRenderConfig& config = ConfigOf(object);
  SetBackColor(object, mMemory.IsHighlighted(IndexA) ? config.HighlightColor() : config.BackColor());
  return pass == mPass && IsUndisturbed();
}

void ObjectHighlight::Watch(const CMURTimeline& TimelineA) {
  const auto colors = mState.Canvas().ColorRevision();
  if (!colors) return;
  mTimeline = &TimelineA;
  mMembersRevision = TimelineA.MembersRevision();
  mColorRevision = *colors;
  // Beyond so many changes a pass over all is less work.
  mChanged.reserve(64 + TimelineA.MemberCount() / 8);
}

void ObjectHighlight::AboutToChange(const IMURTimelineObject& ObjectA,
                                    const IMURTLObjectEventSink& SinkA) noexcept {
  if (&SinkA != mTimeline || mTimeline->MembersRevision() != mMembersRevision) return;
  if (mChanged.size() == mChanged.capacity()) return Forget();
  mChanged.push_back(&ObjectA);
}

// Takes up what changed since the last pass. False when only a pass over all objects helps.
bool ObjectHighlight::CatchUp() {
  if (!mRemembers || !IsUndisturbed() || !mConfigs.AreUnchanged()) return false;
  ++mPass;
  mChangedAt.clear();
  for (const IMURTimelineObject* object : mChanged) {
    const std::size_t index = mTimeline->PositionOf(object->KeyText().View()) - 1;
    if (!mMemory.IsAt(index, *object)) return false;
    const auto span = object->WatchSpan(*mTimeline);
    if (!span) return false;
    mMemory.SetSpan(index, *span);
    mChangedAt.push_back(index);
  }
  mChanged.clear();
  return true;
}

// Whether the members are those that were met and nobody else wrote to their bars.
bool ObjectHighlight::IsUndisturbed() const {
  return mTimeline && mState.timeline.Get() == mTimeline &&
         mTimeline->MembersRevision() == mMembersRevision &&
         mState.Canvas().ColorRevision() == mColorRevision;
}

void ObjectHighlight::Forget() {
  mRemembers = false;
  mTimeline = nullptr;
  mChanged.clear();
}

// Of the default's kind when the object cannot tell its own.
const CMURTLRenderConfig& ObjectHighlight::ConfigOf(const IMURTimelineObject& ObjectA) {
  const CMURTLRenderConfig* config = mDrawing.Configs().Default().Get();
  ResumeNext([&] { config = &mConfigs.Of(ObjectA); });
  return *config;
}

void ObjectHighlight::SetBackColor(const IMURTimelineObject& ObjectA, OleColor ColorA) {
  ResumeNext([&] {
    const Ref<ICanvasItem> item = mDrawing.ItemOf(ObjectA);
    if (!item) return;
    ++mColorRevision;
    item->SetBackColor(ColorA);
  });
}

}  // namespace mur
