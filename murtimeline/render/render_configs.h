#pragma once

#include <cstdint>
#include <optional>

#include <murtimeline/automation/collection.h>
#include <murtimeline/model/render_config.h>
#include <murtimeline/model/timeline_object_interface.h>

namespace mur {

/// The colours of the kinds of objects: a table under keys, and a default for every kind that has no entry.
/// A numeric key stands for "Key_" and the number rounded to a whole one, any other for its text.
class RenderConfigs {
 public:
  const Ref<CMURTLRenderConfig>& Default() const { return mDefault; }
  /// The entry under that key; none when there is none, or when the key has no text.
  Ref<CMURTLRenderConfig> Find(const Variant& KeyIndexA) const;
  /// The entry under that key, new with the start colours if need be.
  Ref<CMURTLRenderConfig> Add(const Variant& KeyIndexA);
  /// The entry for the object's kind (a group's group type, else its object type), or the default. Never
  /// raises an error.
  Ref<CMURTLRenderConfig> Resolve(const IMURTimelineObject& ObjectA) const;
  /// What decides about an object's configuration: a group's group type, else its object type.
  static MURTimelineObjectType KindOf(const IMURTimelineObject& ObjectA) {
    const MURTimelineObjectType type = ObjectA.ObjectType();
    return type != murtlotGroup ? type : ObjectA.GroupType();
  }
  /// The entry for a kind, or the default. Never raises an error.
  Ref<CMURTLRenderConfig> ForKind(MURTimelineObjectType KindA) const;
  /// How many entries were added so far; none ever goes.
  std::uint64_t Revision() const { return mConfigs->Count(); }

 private:
  static std::optional<String> KeyOf(const Variant& KeyIndexA);

  Ref<CMURTLRenderConfig> mDefault = Make<CMURTLRenderConfig>();
  Ref<Collection<CMURTLRenderConfig>> mConfigs = Make<Collection<CMURTLRenderConfig>>();
};

}  // namespace mur
