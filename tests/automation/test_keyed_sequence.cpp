#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include <murtimeline/automation/keyed_sequence.h>

namespace mur {
namespace {

struct Itself {
  StringView operator()(const String& TextA) const { return TextA; }
};
using Sequence = KeyedSequence<String, Itself>;

// The same rules on a vector with linear search.
class PlainSequence {
 public:
  bool Append(const String& KeyA) {
    if (PositionOf(KeyA) != 0) return false;
    mKeys.push_back(KeyA);
    return true;
  }
  std::size_t PositionOf(StringView KeyA) const {
    const auto found = std::find_if(mKeys.begin(), mKeys.end(),
                                    [&](const auto& key) { return EqualIgnoringCase(key, KeyA); });
    return found == mKeys.end() ? 0 : static_cast<std::size_t>(found - mKeys.begin()) + 1;
  }
  void RemoveAt(std::size_t PositionA) {
    mKeys.erase(mKeys.begin() + static_cast<std::ptrdiff_t>(PositionA) - 1);
  }
  const std::vector<String>& Keys() const { return mKeys; }

 private:
  std::vector<String> mKeys;
};

void ExpectSame(const Sequence& SequenceA, const PlainSequence& PlainA) {
  ASSERT_EQ(SequenceA.Count(), PlainA.Keys().size());
  std::size_t slot = SequenceA.NextSlot(0);
  for (std::size_t position = 1; position <= SequenceA.Count(); ++position) {
    const String& key = PlainA.Keys()[position - 1];
    ASSERT_EQ(SequenceA.SlotOfPosition(position), slot);
    ASSERT_EQ(SequenceA.At(slot), key);
    ASSERT_EQ(SequenceA.SlotOfKey(key), slot);
    ASSERT_EQ(SequenceA.PositionOfSlot(slot), position);
    slot = SequenceA.NextSlot(slot + 1);
  }
  EXPECT_EQ(slot, Sequence::kNone);
  EXPECT_EQ(SequenceA.SlotOfPosition(0), Sequence::kNone);
  EXPECT_EQ(SequenceA.SlotOfPosition(SequenceA.Count() + 1), Sequence::kNone);
}

TEST(KeyedSequence, AgreesWithAPlainVectorThroughRandomChanges) {
  for (const unsigned removals : {30u, 49u, 60u}) {
    std::mt19937 random(removals);
    Sequence sequence;
    PlainSequence plain;
    for (int step = 0; step < 6000; ++step) {
      const auto action = random() % 100;
      if (action >= removals || sequence.Count() == 0) {
        const String key = FromAscii((random() % 2 ? "Key" : "kEY") + std::to_string(random() % 700));
        ASSERT_EQ(sequence.Append(key), plain.Append(key));
      } else {
        const std::size_t position = action % 3 == 0 ? 1 : 1 + random() % sequence.Count();
        const String key = sequence.Remove(sequence.SlotOfPosition(position));
        ASSERT_EQ(key, plain.Keys()[position - 1]);
        plain.RemoveAt(position);
        ASSERT_EQ(sequence.SlotOfKey(key), Sequence::kNone);
      }
      if (step % 101 == 0) ExpectSame(sequence, plain);
    }
    ExpectSame(sequence, plain);
  }
}

TEST(KeyedSequence, KeepsSlotsWhilePinnedAndTidiesUpAfterwards) {
  Sequence sequence;
  PlainSequence plain;
  for (int i = 0; i < 500; ++i) {
    sequence.Append(FromAscii(std::to_string(i)));
    plain.Append(FromAscii(std::to_string(i)));
  }
  const std::size_t last = sequence.SlotOfKey(u"499");
  sequence.Pin();
  for (int i = 0; i < 450; ++i) {
    sequence.Remove(sequence.SlotOfPosition(1));
    plain.RemoveAt(1);
  }
  EXPECT_EQ(sequence.SlotOfKey(u"499"), last);
  sequence.Unpin();
  sequence.Remove(sequence.SlotOfPosition(1));
  plain.RemoveAt(1);
  EXPECT_LT(sequence.SlotOfKey(u"499"), last);
  ExpectSame(sequence, plain);
}

TEST(KeyedSequence, FindsKeysInAnyLetterCaseWhileWalkingAndOutOfOrder) {
  Sequence sequence;
  for (const auto* key : {u"a", u"b", u"c"}) sequence.Append(key);
  EXPECT_EQ(sequence.SlotOfKey(u"b"), 1u);
  EXPECT_EQ(sequence.SlotOfKey(u"c"), 2u);
  EXPECT_EQ(sequence.SlotOfKey(u"c"), 2u);
  EXPECT_EQ(sequence.SlotOfKey(u"A"), 0u);
  EXPECT_EQ(sequence.SlotOfKey(u"d"), Sequence::kNone);
}

}  // namespace
}  // namespace mur
