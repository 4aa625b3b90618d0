#pragma once

#include <vector>

#include <murtimeline/model/timeline_group.h>
#include <murtimeline/model/timeline_media.h>
#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/model/timeline_scalar.h>

#include "tests/support/recording_sink.h"

namespace mur::test {

/// Makes loose objects that report to `sink`, and frees them with all below them at its end: parents and
/// children hold each other by contract.
class ModelObjects {
 public:
  ModelObjects() = default;
  ~ModelObjects() {
    for (const auto& object : mObjects) FreeTree(object);
  }
  ModelObjects(const ModelObjects&) = delete;
  ModelObjects& operator=(const ModelObjects&) = delete;

  Ref<CMURTimelineGroup> Group(StringView KeyA) { return Named<CMURTimelineGroup>(KeyA); }
  Ref<CMURTimelineScalar> Scalar(StringView KeyA) { return Named<CMURTimelineScalar>(KeyA); }
  Ref<CMURTimelineMedia> Media(StringView KeyA) { return Named<CMURTimelineMedia>(KeyA); }
  template <class T>
  Ref<T> Keep(Ref<T> ObjectA) {
    mObjects.push_back(ObjectA);
    return ObjectA;
  }

  Ref<RecordingSink> sink = Make<RecordingSink>();

 private:
  template <class T>
  Ref<T> Named(StringView KeyA) {
    auto object = Keep(Make<T>());
    object->SetKey(KeyA);
    object->SetEventSink(sink);
    return object;
  }

  std::vector<Ref<IMURTimelineObject>> mObjects;
};

}  // namespace mur::test
