#include "tests/support/foreign_object.h"

#include <cmath>

namespace mur::test {

void ForeignObject::Clear() {
  mKey.clear();
  mTag.clear();
  mSink = nullptr;
  mParent = nullptr;
  mChildren.clear();
}

void ForeignObject::Free() {
  ++timesFreed;
  Clear();
}

String ForeignObject::AsString(StringView IndentA) const {
  String text = String(IndentA) + u"ForeignObject: " + mKey + u"\r\n";
  for (const auto& child : mChildren) text += child->AsString(String(IndentA) + u"    ");
  return text;
}

Ref<IMURTimelineObject> ForeignObject::Item(const Variant& KeyIndexA) const {
  for (std::size_t i = 0; i < mChildren.size(); ++i) {
    const String* key = KeyIndexA.As<String>();
    if (key ? mChildren[i]->Key() == *key : KeyIndexA.Number() == static_cast<double>(i + 1))
      return mChildren[i];
  }
  return {};
}

void ForeignObject::Add(const Ref<IMURTimelineObject>& ChildA, StringView KeyA) {
  mChildren.push_back(ChildA);
  ChildA->SetKey(KeyA);
  ChildA->SetParent(Ref<IMURTimelineObject>(this));
}

Ref<IMURTimelineObject> ForeignObject::Remove(const Variant& KeyIndexA) {
  const Ref<IMURTimelineObject> child = Item(KeyIndexA);
  std::erase(mChildren, child);
  return child;
}

bool ForeignObject::SpansTime(Date DateA, bool IncludeBoundariesA) const {
  const Date end = AddSeconds(mWorldTimeT0, mDuration);
  return IncludeBoundariesA ? mWorldTimeT0 <= DateA && DateA <= end : mWorldTimeT0 < DateA && DateA < end;
}

}  // namespace mur::test
