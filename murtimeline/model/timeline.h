#pragma once

#include <murtimeline/automation/collection.h>
#include <murtimeline/automation/event.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

/// The root of a time line: a keyed, ordered collection of timeline objects, the span of world time that it
/// covers, a list of track keys and a key generator. It is the sink of its members and raises each of their
/// reports as an event of its own, so that one listener sees every change.
///
/// Nothing here raises an error for bad keys, duplicate keys or unsupported types. A listener that throws
/// ends the routine that raised the event where that is said, and is otherwise passed over.
class MUR_API CMURTimeline final : public IMURTLObjectEventSink {
 public:
  using Members = Collection<IMURTimelineObject>;

  CMURTimeline();

  /// `Clear` is about to begin.
  Event<> Clearing;
  /// `Clear` has emptied and reset the time line.
  Event<> Cleared;
  /// "Tag", "AutoID", "Duration", "WorldTimeT0" or "NTrackKeys".
  Event<StringView /*PropNameA*/> PropertyChanged;
  /// The member's key.
  Event<const Variant& /*KeyIdxA*/> TLObjectAdded;
  /// The key or position as the caller of `Remove` passed it, and the removed member's tag.
  Event<const Variant& /*KeyIdxA*/, StringView /*TagA*/> TLObjectRemoved;
  Event<const Ref<IMURTimelineObject>& /*ParentA*/, const Ref<IMURTimelineObject>& /*ChildA*/>
      TLObjectAdopted;
  Event<const Ref<IMURTimelineObject>& /*ParentA*/, const Ref<IMURTimelineObject>& /*ChildA*/>
      TLObjectOrphaned;
  Event<const Ref<IMURTimelineObject>& /*ObjectA*/, StringView /*PropNameA*/, const Variant& /*ValueA*/>
      TLObjectPropertyChanged;

  /// Seconds; 3600 at the start. Puts of an unchanged value raise nothing, here and below.
  double Duration() const { return mDuration; }
  void SetDuration(double DurationA);
  /// The local time of creation or of the last `Clear`. Touches no member.
  Date WorldTimeT0() const { return mWorldTimeT0; }
  void SetWorldTimeT0(Date WorldTimeT0A);
  String Tag() const { return mTag; }
  void SetTag(StringView TagA);
  /// The number that the next generated key will carry.
  std::int32_t AutoID() const { return mAutoID; }
  void SetAutoID(std::int32_t AutoIDA);

  /// Throws Overflow beyond 32,767.
  std::int16_t NTrackKeys() const;
  /// The track key at that position or with that key; empty when there is none.
  String TrackKey(const Variant& KeyIndexA) const;
  /// Appends a track key, a known one excepted; raises PropertyChanged "NTrackKeys" in any case.
  Variant AddTrackKey(StringView KeyA);
  /// Removes a track key if it is there; raises PropertyChanged "NTrackKeys" in any case.
  void RemoveTrackKey(const Variant& KeyIndexA);
  /// The number of track keys beyond what 16 bits can say.
  std::size_t TrackCount() const { return mTrackKeys.Count(); }
  /// The 1-based position of exactly this track key, letter case included; 0 when there is none.
  std::size_t TrackPosition(StringView KeyA) const;

  std::int32_t Count() const;
  /// The number of members beyond what 32 bits can say.
  std::size_t MemberCount() const { return mMembers->Count(); }
  /// The member with that key or 1-based position; none when there is none.
  Ref<IMURTimelineObject> Item(const Variant& KeyIndexA) const { return mMembers->Find(KeyIndexA); }
  Ref<IMURTimelineObject> ItemByKey(StringView KeyA) const { return mMembers->FindByKey(KeyA); }
  /// Walks the members in order; the time line may change meanwhile.
  Members::Enumerator NewEnum() const { return Members::Enumerator(mMembers); }
  /// The 1-based position of the member with that key; 0 when there is none.
  std::size_t PositionOf(StringView KeyA) const { return mMembers->PositionOf(KeyA); }
  /// A stamp that moves whenever a member comes or goes, and that no two time lines have in common.
  std::uint64_t MembersRevision() const noexcept { return mMembersRevision; }

  /// Creates and inserts a group, scalar or media object; none for any other type, or when the key exists.
  /// With `IsTrackA` its key becomes a track key as well.
  Ref<IMURTimelineObject> Add(MURTimelineObjectType ObjectTypeA, const Variant& sKey = Variant::Missing(),
                              bool IsTrackA = false);
  /// Takes an object in, under a generated key ("Key_000000") where none is given, and becomes its sink.
  /// False at the first failure, with the steps before it done.
  bool Insert(const Ref<IMURTimelineObject>& MemberA, const Variant& sKey = Variant::Missing());
  /// Frees a member and lets it go.
  void Remove(const Variant& vntIndexKey);
  /// Frees all members and resets everything to the start values; raises `Clearing` and `Cleared` alone.
  void Clear();

  String AsString(StringView IndentA) const;
  String Specifics_AsString(StringView IndentA) const;
  /// Raises PropertyChanged for "Tag", "AutoID", "Duration", "WorldTimeT0" and "NTrackKeys".
  void EnumerateProperties();

  void ObjectAdopted(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA) override;
  void ObjectOrphaned(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA) override;
  void ObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyNameA,
                             const Variant& ValueA) override;

 private:
  struct TextItself {
    StringView operator()(const String& TextA) const { return TextA; }
  };
  using TrackKeys = KeyedSequence<String, TextItself>;

  ~CMURTimeline() override = default;

  void Initialise();
  void ResetSpecifics();
  void MoveMembersRevision() noexcept;
  String GenerateKey() const;
  void MoveShapeRevisionIfTrack(StringView KeyA) const;
  template <class Value, class New>
  void Put(Value& StoredA, const New& ValueA, StringView PropertyNameA);
  void RaisePropertyChanged(StringView PropertyNameA);

  Ref<Members> mMembers;
  std::uint64_t mMembersRevision = 0;
  String mTag;
  std::int32_t mAutoID = 0;
  bool mEnumeratingProperties = false;
  double mDuration = 0;
  Date mWorldTimeT0;
  TrackKeys mTrackKeys;
};

}  // namespace mur
