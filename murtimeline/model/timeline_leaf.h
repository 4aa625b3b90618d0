#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/model/timeline_object.h>

namespace mur {

/// What scalars and media share: they have no children and no group type, and a start or offset counts as new
/// only when it is strictly less or strictly greater than the stored one (so NaN never does).
class MUR_API TimelineLeaf : public TimelineObject {
 public:
  MURTimelineObjectType GroupType() const final { return murtlotUnknown; }
  void SetGroupType(MURTimelineObjectType /*GroupTypeA*/) final {}
  std::int16_t Count() const final { return 0; }
  Ref<IMURTimelineObject> Item(const Variant& /*KeyIndexA*/) const final { return {}; }
  void Add(const Ref<IMURTimelineObject>& /*ChildA*/, StringView /*KeyA*/) final {}
  Ref<IMURTimelineObject> Remove(const Variant& /*KeyIndexA*/) final { return {}; }

  std::optional<int> KnownSubtreeDepth() const final { return 1; }

 protected:
  bool Differs(double StoredA, double NewA) const final { return StoredA < NewA || StoredA > NewA; }
};

}  // namespace mur
