#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <murtimeline/model/enumerations.h>

#include "tests/support/value_text.h"

namespace mur::test {

/// The rules of timeline objects once more, written for clarity alone: objects are numbers, children a
/// vector, and every search is linear. Reports read like those of a RecordingSink.
class PlainModel {
 public:
  struct Child {
    std::string key;
    int object;
  };
  struct Object {
    MURTimelineObjectType type;
    std::string key, tag;
    int parent = -1;
    double duration = 0, start = 0, offset = 0;
    bool locked = false, hasSink = true;
    std::vector<Child> children;
  };

  std::vector<Object> objects;
  std::string log;

  void PutKey(int ObjectA, const std::string& KeyA) {
    objects[At(ObjectA)].key = KeyA;
    Report(ObjectA, "Key", "'" + KeyA + "'");
  }
  void PutTag(int ObjectA, const std::string& TagA) {
    objects[At(ObjectA)].tag = TagA;
    Report(ObjectA, "Tag", "'" + TagA + "'");
  }
  void PutDuration(int ObjectA, double DurationA) {
    objects[At(ObjectA)].duration = DurationA;
    Report(ObjectA, "Duration", NumberText(DurationA));
  }
  void PutLocked(int ObjectA, bool LockedA) {
    if (objects[At(ObjectA)].locked == LockedA) return;
    objects[At(ObjectA)].locked = LockedA;
    Report(ObjectA, "LockedToParent", LockedA ? "true" : "false");
  }
  void PutStart(int ObjectA, double StartA) {
    if (objects[At(ObjectA)].start != StartA) ApplyStart(ObjectA, StartA);
  }
  void PutOffset(int ObjectA, double OffsetA) {
    if (objects[At(ObjectA)].offset != OffsetA) ApplyOffset(ObjectA, OffsetA);
  }
  void TellParentMoved(int ObjectA) {
    if (objects[At(ObjectA)].locked)
      ApplyOffset(ObjectA, objects[At(ObjectA)].offset);
    else
      ApplyStart(ObjectA, objects[At(ObjectA)].start);
  }

  void Add(int GroupA, int ChildA, const std::string& KeyA) {
    if (objects[At(GroupA)].type != murtlotGroup || PositionOf(GroupA, KeyA) != 0) return;
    objects[At(GroupA)].children.push_back({KeyA, ChildA});
    PutKey(ChildA, KeyA);
    objects[At(ChildA)].parent = GroupA;
    if (objects[At(GroupA)].hasSink) Note(Key(GroupA) + " adopts " + Key(ChildA));
  }
  /// The removed child, -1 for none; 1-based.
  int Remove(int GroupA, std::size_t PositionA) {
    auto& group = objects[At(GroupA)];
    if (PositionA < 1 || PositionA > group.children.size()) return -1;
    const int child = group.children[PositionA - 1].object;
    group.children.erase(group.children.begin() + static_cast<std::ptrdiff_t>(PositionA) - 1);
    if (!group.hasSink) return -1;
    Note(Key(GroupA) + " orphans " + Key(child));
    return child;
  }
  std::size_t PositionOf(int GroupA, const std::string& KeyA) const {
    const auto& children = objects[At(GroupA)].children;
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&](const Child& child) { return Lower(child.key) == Lower(KeyA); });
    return found == children.end() ? 0 : static_cast<std::size_t>(found - children.begin()) + 1;
  }

 private:
  static std::size_t At(int ObjectA) { return static_cast<std::size_t>(ObjectA); }
  static std::string Lower(std::string TextA) {
    std::transform(TextA.begin(), TextA.end(), TextA.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return TextA;
  }
  const std::string& Key(int ObjectA) const { return objects[At(ObjectA)].key; }

  void ApplyStart(int ObjectA, double StartA) {
    auto& object = objects[At(ObjectA)];
    object.start = StartA;
    PutOffset(ObjectA, object.parent < 0 ? 0 : (StartA - objects[At(object.parent)].start) * 86400);
    for (const auto& child : object.children) TellParentMoved(child.object);
    Report(ObjectA, object.type == murtlotMedia ? "WorldTimeT0" : "WorldtimeT0",
           DateText(Date::Unchecked(object.start)));
  }
  void ApplyOffset(int ObjectA, double OffsetA) {
    auto& object = objects[At(ObjectA)];
    object.offset = OffsetA;
    if (object.parent >= 0) PutStart(ObjectA, OffsetA / 86400 + objects[At(object.parent)].start);
    Report(ObjectA, "Offset", NumberText(object.offset));
  }
  void Report(int ObjectA, const std::string& NameA, const std::string& ValueA) {
    if (objects[At(ObjectA)].hasSink) Note(Key(ObjectA) + "." + NameA + " = " + ValueA);
  }
  void Note(const std::string& LineA) { log += log.empty() ? LineA : "; " + LineA; }
};

}  // namespace mur::test
