#include <random>

#include <gtest/gtest.h>

#include "tests/model/plain_model.h"
#include "tests/support/model_invariants.h"
#include "tests/support/model_objects.h"

namespace mur::test {
namespace {

// The same random operations on our objects and on the plain model. Children have higher numbers than their
// groups, so that nothing contains itself.
class RandomOperations : public testing::TestWithParam<unsigned> {
 protected:
  static constexpr int kObjects = 14;

  void SetUp() override {
    for (int i = 0; i < kObjects; ++i) {
      const auto key = "o" + std::to_string(i);
      const auto type = i % 4 == 3 ? (i % 8 == 3 ? murtlotScalar : murtlotMedia) : murtlotGroup;
      if (type == murtlotGroup) ours.push_back(objects.Group(FromAscii(key)));
      if (type == murtlotScalar) ours.push_back(objects.Scalar(FromAscii(key)));
      if (type == murtlotMedia) ours.push_back(objects.Media(FromAscii(key)));
      plain.objects.push_back({type, key, {}, -1, 0, 0, 0, false, i % 5 != 4, {}});
      if (i % 5 == 4) ours.back()->SetEventSink(nullptr);
    }
    objects.sink->Take();
  }

  int Pick(int BoundA) { return static_cast<int>(random() % static_cast<unsigned>(BoundA)); }

  void Step() {
    const int number = Pick(kObjects);
    const auto& object = ours[static_cast<std::size_t>(number)];
    switch (Pick(9)) {
      case 0:
        object->SetTag(FromAscii("t" + std::to_string(number)));
        return plain.PutTag(number, "t" + std::to_string(number));
      case 1: {
        // A media object reads its stored duration with clipping only; its own tests tell about that.
        if (object->ObjectType() == murtlotMedia) return;
        const double duration = Pick(5) * 10;
        object->SetDuration(duration);
        return plain.PutDuration(number, duration);
      }
      case 2: {
        const bool locked = Pick(3) > 0;
        object->SetLockedToParent(locked);
        return plain.PutLocked(number, locked);
      }
      case 3: {
        const double start = 36526 + Pick(1000) / 7.0;
        object->SetWorldTimeT0(Date::Unchecked(start));
        return plain.PutStart(number, start);
      }
      case 4: {
        const double offset = Pick(20000) / 3.0 - 3000;
        object->SetOffset(offset);
        return plain.PutOffset(number, offset);
      }
      case 5:
        object->ParentWorldtimeT0Changed();
        return plain.TellParentMoved(number);
      case 6:
        return RemoveOne(number);
      default:
        return AddOne(number);
    }
  }

  void AddOne(int GroupA) {
    if (GroupA == kObjects - 1) return;
    const int child = GroupA + 1 + Pick(kObjects - 1 - GroupA);
    const std::string key = (Pick(2) ? "Key" : "kEY") + std::to_string(Pick(4));
    ours[static_cast<std::size_t>(GroupA)]->Add(ours[static_cast<std::size_t>(child)], FromAscii(key));
    plain.Add(GroupA, child, key);
  }

  void RemoveOne(int GroupA) {
    const std::string key = "KEY" + std::to_string(Pick(4));
    const std::size_t position = Pick(2) ? plain.PositionOf(GroupA, key) : static_cast<std::size_t>(Pick(4));
    const auto removed = ours[static_cast<std::size_t>(GroupA)]->Remove(position);
    const int expected = plain.Remove(GroupA, position);
    EXPECT_EQ(removed, expected < 0 ? Ref<IMURTimelineObject>() : ours[static_cast<std::size_t>(expected)]);
  }

  void ExpectSameState() {
    for (std::size_t i = 0; i < ours.size(); ++i) {
      const auto& object = *ours[i];
      const auto& expected = plain.objects[i];
      ASSERT_EQ(ToUtf8(object.Key()), expected.key);
      ASSERT_EQ(ToUtf8(object.Tag()), expected.tag);
      ASSERT_EQ(object.Duration(), expected.duration);
      ASSERT_EQ(object.WorldTimeT0().Days(), expected.start);
      ASSERT_EQ(object.offset(), expected.offset);
      ASSERT_EQ(object.LockedToParent(), expected.locked);
      ASSERT_EQ(object.Parent(), expected.parent < 0 ? Ref<IMURTimelineObject>()
                                                     : ours[static_cast<std::size_t>(expected.parent)]);
      ASSERT_EQ(static_cast<std::size_t>(object.Count()), expected.children.size());
      for (std::size_t child = 0; child < expected.children.size(); ++child)
        ASSERT_EQ(object.Item(child + 1), ours[static_cast<std::size_t>(expected.children[child].object)]);
      ExpectSound(ours[i]);
    }
  }

  std::mt19937 random{GetParam()};
  ModelObjects objects;
  std::vector<Ref<IMURTimelineObject>> ours;
  PlainModel plain;
};

TEST_P(RandomOperations, ReportAndLeaveWhatThePlainModelSays) {
  for (int step = 0; step < 3000; ++step) {
    plain.log.clear();
    Step();
    ASSERT_EQ(objects.sink->Take(), plain.log) << "step " << step;
    if (step % 100 == 0) ExpectSameState();
    if (HasFatalFailure()) return;
  }
  ExpectSameState();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomOperations, testing::Values(1u, 2u, 3u, 4u));

}  // namespace
}  // namespace mur::test
