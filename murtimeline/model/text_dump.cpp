#include <string>
#include <unordered_set>
#include <vector>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/automation/stack.h>
#include <murtimeline/model/text_dump.h>

namespace mur {
namespace {

constexpr StringView kLineEnd = u"\r\n";
constexpr StringView kIndentStep = u"    ";

// One object whose children are being dumped.
struct Level {
  const IMURTimelineObject* object;
  std::int16_t count;
  std::int16_t next = 1;
};

// Counts the dumps that host objects start within a dump: a ring through one of them would never end.
class NestedDump {
 public:
  NestedDump() {
    RequireStackSpace();
    if (tDepth >= kDeepest) throw AutomationError(ErrorCode::OutOfStackSpace);
    ++tDepth;
  }
  ~NestedDump() { --tDepth; }
  NestedDump(const NestedDump&) = delete;
  NestedDump& operator=(const NestedDump&) = delete;

 private:
  static constexpr int kDeepest = 256;
  static thread_local int tDepth;
};

thread_local int NestedDump::tDepth = 0;

class TreeDump {
 public:
  TreeDump(String& TextA, String IndentA) : mText(TextA), mIndent(std::move(IndentA)) {}

  void Append(const IMURTimelineObject& RootA) {
    Enter(RootA);
    while (!mLevels.empty()) {
      Level& level = mLevels.back();
      if (level.next > level.count) {
        Leave();
        continue;
      }
      if (const Ref<IMURTimelineObject> child = level.object->Item(level.next++)) {
        mHeld.push_back(child);
        mText += kLineEnd;
        mIndent += kIndentStep;
        if (!Enter(*child)) mIndent.resize(mIndent.size() - kIndentStep.size());
      }
    }
  }

 private:
  // Writes an object's own lines; true when its children are to follow.
  bool Enter(const IMURTimelineObject& ObjectA) {
    if (!ObjectA.AppendOwnLines(mText, mIndent)) {
      mText += ObjectA.AsString(mIndent);
      return false;
    }
    if (ObjectA.ObjectType() != murtlotGroup) return false;
    const std::int16_t count = ObjectA.Count();
    if (count == 0) {
      mText += kLineEnd;
      return false;
    }
    if (mLevels.size() >= kDeepestDump || !mPath.insert(&ObjectA).second)
      throw AutomationError(ErrorCode::OutOfStackSpace);
    mLevels.push_back({&ObjectA, count});
    return true;
  }

  void Leave() {
    mPath.erase(mLevels.back().object);
    mLevels.pop_back();
    if (!mLevels.empty()) mIndent.resize(mIndent.size() - kIndentStep.size());
  }

  String& mText;
  String mIndent;
  std::vector<Level> mLevels;
  std::unordered_set<const IMURTimelineObject*> mPath;
  std::vector<Ref<IMURTimelineObject>>
      mHeld;  // a host's object may hand out its children for the asking only
};

}  // namespace

void AppendDump(String& TextA, const IMURTimelineObject& ObjectA, String IndentA) {
  const NestedDump nested;
  TreeDump(TextA, std::move(IndentA)).Append(ObjectA);
}

void AppendDumpLine(String& TextA, StringView IndentA, StringView LabelA, StringView ValueA) {
  ((TextA += IndentA) += LabelA) += ValueA;
  TextA += kLineEnd;
}

String SecondsText(double SecondsA) {
  return Regional().Format(SecondsA, u"0.000");
}

StringView BooleanText(bool ValueA) {
  return ValueA ? u"True" : u"False";
}

String DecimalText(long long ValueA) {
  return FromAscii(std::to_string(ValueA));
}

}  // namespace mur
