#include "tests/support/recording_sink.h"

#include <utility>

#include "tests/support/value_text.h"

namespace mur::test {

std::string RecordingSink::Take() {
  mValues.clear();
  return std::exchange(mLog, {});
}

void RecordingSink::Note(const std::string& LineA) {
  if (!mLog.empty()) mLog += "; ";
  mLog += LineA;
}

void RecordingSink::ObjectAdopted(const Ref<IMURTimelineObject>& ParentA,
                                  const Ref<IMURTimelineObject>& ChildA) {
  Note(ValueText(ParentA) + " adopts " + ValueText(ChildA));
  if (onAdopted) onAdopted();
}

void RecordingSink::ObjectOrphaned(const Ref<IMURTimelineObject>& ParentA,
                                   const Ref<IMURTimelineObject>& ChildA) {
  Note(ValueText(ParentA) + " orphans " + ValueText(ChildA));
  if (onOrphaned) onOrphaned();
}

void RecordingSink::ObjectPropertyChanged(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyNameA,
                                          const Variant& ValueA) {
  mValues.push_back(ValueA);
  Note(ValueText(ObjectA) + "." + ToUtf8(PropertyNameA) + " = " + ValueText(ValueA));
  if (onReport) onReport(ObjectA, PropertyNameA);
}

}  // namespace mur::test
