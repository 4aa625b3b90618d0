#include <limits>
#include <string>

#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/model/timeline.h>
#include <murtimeline/model/timeline_group.h>
#include <murtimeline/model/timeline_media.h>
#include <murtimeline/model/timeline_scalar.h>

namespace mur {
namespace {

constexpr double kDefaultDuration = 3600;  // seconds

Ref<IMURTimelineObject> Create(MURTimelineObjectType ObjectTypeA) {
  switch (ObjectTypeA) {
    case murtlotGroup:
      return Make<CMURTimelineGroup>();
    case murtlotScalar:
      return Make<CMURTimelineScalar>();
    case murtlotMedia:
      return Make<CMURTimelineMedia>();
    default:
      return {};
  }
}

}  // namespace

CMURTimeline::CMURTimeline() {
  Initialise();
}

void CMURTimeline::Initialise() {
  mMembers = Make<Members>();
  MoveMembersRevision();
  mTag.clear();
  mAutoID = 0;
  mEnumeratingProperties = false;
  ResetSpecifics();
}

void CMURTimeline::MoveMembersRevision() noexcept {
  static thread_local std::uint64_t tLast = 0;
  mMembersRevision = ++tLast;
}

void CMURTimeline::ResetSpecifics() {
  mDuration = kDefaultDuration;
  mWorldTimeT0 = Now();
  mTrackKeys = TrackKeys();
  MoveShapeRevision();
}

template <class Value, class New>
void CMURTimeline::Put(Value& StoredA, const New& ValueA, StringView PropertyNameA) {
  const bool differs = StoredA != ValueA;
  if (differs) StoredA = ValueA;
  if (differs || mEnumeratingProperties) RaisePropertyChanged(PropertyNameA);
}

void CMURTimeline::SetDuration(double DurationA) {
  Put(mDuration, DurationA, u"Duration");
}

void CMURTimeline::SetWorldTimeT0(Date WorldTimeT0A) {
  Put(mWorldTimeT0, WorldTimeT0A, u"WorldTimeT0");
}

void CMURTimeline::SetTag(StringView TagA) {
  Put(mTag, TagA, u"Tag");
}

void CMURTimeline::SetAutoID(std::int32_t AutoIDA) {
  Put(mAutoID, AutoIDA, u"AutoID");
}

std::int16_t CMURTimeline::NTrackKeys() const {
  return Narrow<std::int16_t>(mTrackKeys.Count());
}

String CMURTimeline::TrackKey(const Variant& KeyIndexA) const {
  const std::size_t slot = Selector(KeyIndexA).SlotIn(mTrackKeys);
  return slot == TrackKeys::kNone ? String() : mTrackKeys.At(slot);
}

Variant CMURTimeline::AddTrackKey(StringView KeyA) {
  if (mTrackKeys.Append(String(KeyA))) MoveShapeRevision();
  RaisePropertyChanged(u"NTrackKeys");
  return {};
}

void CMURTimeline::RemoveTrackKey(const Variant& KeyIndexA) {
  if (const std::size_t slot = Selector(KeyIndexA).SlotIn(mTrackKeys); slot != TrackKeys::kNone) {
    mTrackKeys.Remove(slot);
    MoveShapeRevision();
  }
  RaisePropertyChanged(u"NTrackKeys");
}

std::size_t CMURTimeline::TrackPosition(StringView KeyA) const {
  // Keys are unique when letter case is ignored, so that no other one can be equal exactly.
  const std::size_t slot = mTrackKeys.SlotOfKey(KeyA);
  return slot != TrackKeys::kNone && IsSameText(mTrackKeys.At(slot), KeyA) ? mTrackKeys.PositionOfSlot(slot)
                                                                           : 0;
}

std::int32_t CMURTimeline::Count() const {
  return Narrow<std::int32_t>(mMembers->Count());
}

String CMURTimeline::GenerateKey() const {
  const std::string digits = std::to_string(std::abs(static_cast<long long>(mAutoID)));
  const std::size_t padding = digits.size() < 6 ? 6 - digits.size() : 0;
  return FromAscii(std::string(mAutoID < 0 ? "Key_-" : "Key_").append(padding, '0').append(digits));
}

Ref<IMURTimelineObject> CMURTimeline::Add(MURTimelineObjectType ObjectTypeA, const Variant& sKey,
                                          bool IsTrackA) {
  const Ref<CMURTimeline> keep(this);
  Ref<IMURTimelineObject> member = Create(ObjectTypeA);
  if (!member || !Insert(member, sKey)) return {};
  if (IsTrackA) AddTrackKey(member->Key());
  return member;
}

bool CMURTimeline::Insert(const Ref<IMURTimelineObject>& MemberA, const Variant& sKey) {
  const Ref<CMURTimeline> keep(this);
  const Ref<IMURTimelineObject> member = MemberA;
  bool inserted = false;
  ResumeNext([&] {
    String key;
    if (sKey.Is(VariantKind::Missing)) {
      key = GenerateKey();
      if (mAutoID == std::numeric_limits<std::int32_t>::max()) throw AutomationError(ErrorCode::Overflow);
      ++mAutoID;
    } else if (const String* text = sKey.As<String>()) {
      key = *text;
    } else {
      return;
    }
    const SharedText shared(key);
    if (!member || !mMembers->Add(member, shared)) return;
    MoveMembersRevision();
    MoveShapeRevisionIfTrack(key);
    member->SetKeyText(shared);
    member->SetEventSink(keep);
    TLObjectAdded.Raise(std::move(key));
    inserted = true;
  });
  return inserted;
}

void CMURTimeline::Remove(const Variant& vntIndexKey) {
  const Ref<CMURTimeline> keep(this);
  const Variant asPassed = vntIndexKey;
  ResumeNext([&] {
    const Selector selector(asPassed);
    const Ref<IMURTimelineObject> member = mMembers->Find(selector);
    if (!member) return;
    const String key = member->Key();
    const String tag = member->Tag();
    member->Free();
    if (!mMembers->Remove(selector)) return;
    MoveMembersRevision();
    MoveShapeRevisionIfTrack(key);
    RemoveTrackKey(key);
    TLObjectRemoved.Raise(asPassed, tag);
  });
}

void CMURTimeline::Clear() {
  // A host's own member may put new ones in while it is freed; such arrivals are taken along up to this many.
  constexpr std::size_t kLateArrivals = 1000;
  const Ref<CMURTimeline> keep(this);
  ResumeNext([&] { Clearing.Raise(); });
  const Ref<Members> members = mMembers;
  for (std::size_t left = members->Count() + kLateArrivals; left > 0; --left) {
    const Ref<IMURTimelineObject> member = members->Remove(Selector(std::size_t{1}));
    if (!member) break;
    MoveMembersRevision();
    ResumeNext([&] { member->Free(); });
  }
  Initialise();
  ResumeNext([&] { Cleared.Raise(); });
}

void CMURTimeline::MoveShapeRevisionIfTrack(StringView KeyA) const {
  if (mTrackKeys.Count() > 0 && mTrackKeys.SlotOfKey(KeyA) != TrackKeys::kNone) MoveShapeRevision();
}

void CMURTimeline::EnumerateProperties() {
  // Ends with the routine, also when that runs out of stack space.
  struct Enumerating {
    explicit Enumerating(bool& FlagA) : flag(FlagA) { flag = true; }
    ~Enumerating() { flag = false; }
    bool& flag;
  };
  const Ref<CMURTimeline> keep(this);
  const Enumerating enumerating(mEnumeratingProperties);
  SetTag(Tag());
  SetAutoID(AutoID());
  SetDuration(Duration());
  SetWorldTimeT0(WorldTimeT0());
  RaisePropertyChanged(u"NTrackKeys");
}

void CMURTimeline::RaisePropertyChanged(StringView PropertyNameA) {
  const Ref<CMURTimeline> keep(this);
  ResumeNext([&] { PropertyChanged.Raise(PropertyNameA); });
}

void CMURTimeline::ObjectAdopted(const Ref<IMURTimelineObject>& ParentA,
                                 const Ref<IMURTimelineObject>& ChildA) {
  const Ref<CMURTimeline> keep(this);
  TLObjectAdopted.Raise(ParentA, ChildA);
}

void CMURTimeline::ObjectOrphaned(const Ref<IMURTimelineObject>& ParentA,
                                  const Ref<IMURTimelineObject>& ChildA) {
  const Ref<CMURTimeline> keep(this);
  TLObjectOrphaned.Raise(ParentA, ChildA);
}

void CMURTimeline::ObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyNameA,
                                         const Variant& ValueA) {
  const Ref<CMURTimeline> keep(this);
  TLObjectPropertyChanged.Raise(ObjectA, PropertyNameA, ValueA);
}

}  // namespace mur
