#pragma once

#include <functional>
#include <string>
#include <vector>

#include <murtimeline/model/timeline_object_interface.h>

namespace mur::test {

/// A host's own sink. Its log reads as text: "G.Tag = 'x'; G adopts S; G orphans S".
class RecordingSink final : public IMURTLObjectEventSink {
 public:
  /// The log so far; it and the values are then empty.
  std::string Take();
  /// The values of the log's reports, in order.
  const std::vector<Variant>& Values() const { return mValues; }

  /// Called after each report was written down.
  std::function<void(const Ref<IMURTimelineObject>& /*ObjectA*/, StringView /*PropertyNameA*/)> onReport;
  std::function<void()> onAdopted;
  std::function<void()> onOrphaned;

  void ObjectAdopted(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA) override;
  void ObjectOrphaned(const Ref<IMURTimelineObject>& ParentA, const Ref<IMURTimelineObject>& ChildA) override;
  void ObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyNameA,
                             const Variant& ValueA) override;

 private:
  void Note(const std::string& LineA);

  std::string mLog;
  std::vector<Variant> mValues;
};

}  // namespace mur::test
