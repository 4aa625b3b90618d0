#include <gmock/gmock.h>

#include "tests/com/late.h"

namespace mur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A time line with the scalars a, b and c, and its enumerator.
class Enumeration : public testing::Test {
 protected:
  Enumeration() {
    for (const wchar_t* key : {L"a", L"b", L"c"}) timeline.Call(L"Add", {1, key});
    members = NewEnumerator();
  }
  ~Enumeration() override { timeline.Call(L"Clear"); }

  Ref<IEnumVARIANT> NewEnumerator() const { return Query<IEnumVARIANT>(timeline.Get(L"NewEnum").Object()); }
  static std::vector<std::string> Rest(IEnumVARIANT& MembersA) {
    std::vector<std::string> keys;
    for (Value member; MembersA.Next(1, &member, nullptr) == S_OK; member = {})
      keys.push_back(ToUtf8(Late(member).Get(L"Key").Text()));
    return keys;
  }

  const Late timeline = NewTimeline();
  Ref<IEnumVARIANT> members;
};

TEST_F(Enumeration, MeetsTheMembersInOrderAndThenNothing) {
  EXPECT_THAT(Rest(*members), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Rest(*members), IsEmpty());
}

TEST_F(Enumeration, HandsOutSeveralAtATime) {
  VARIANT met[5] = {};
  ULONG count = 9;
  EXPECT_EQ(members->Next(2, met, &count), S_OK);
  EXPECT_EQ(count, 2u);
  EXPECT_EQ(members->Next(3, met + 2, &count), S_FALSE);
  EXPECT_EQ(count, 1u);
  EXPECT_EQ(V_VT(&met[2]), VT_DISPATCH);
  EXPECT_EQ(V_VT(&met[3]), VT_EMPTY);
  for (VARIANT& member : met) VariantClear(&member);
}

TEST_F(Enumeration, HandsOutNothingWhenNothingIsAskedFor) {
  VARIANT met{};
  ULONG count = 9;
  EXPECT_EQ(members->Next(0, &met, &count), S_OK);
  EXPECT_EQ(count, 0u);
}

TEST_F(Enumeration, RefusesToAnswerNowhere) {
  VARIANT met[2] = {};
  EXPECT_EQ(members->Next(1, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(members->Next(2, met, nullptr), E_POINTER);
  EXPECT_EQ(members->Clone(nullptr), E_POINTER);
  EXPECT_EQ(members->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(Query<::_CMURTimeline>(timeline.Pointer())->get_NewEnum(nullptr), E_POINTER);
}

TEST_F(Enumeration, SkipsAndBeginsAgain) {
  EXPECT_EQ(members->Skip(2), S_OK);
  EXPECT_THAT(Rest(*members), ElementsAre("c"));
  EXPECT_EQ(members->Skip(1), S_FALSE);
  EXPECT_EQ(members->Reset(), S_OK);
  EXPECT_EQ(members->Skip(4), S_FALSE);
  EXPECT_EQ(members->Reset(), S_OK);
  EXPECT_THAT(Rest(*members), ElementsAre("a", "b", "c"));
}

TEST_F(Enumeration, GoesOnFromThereInAClone) {
  members->Skip(1);
  IEnumVARIANT* found = nullptr;
  ASSERT_EQ(members->Clone(&found), S_OK);
  const auto clone = TakeOver(found);
  EXPECT_THAT(Rest(*members), ElementsAre("b", "c"));
  EXPECT_THAT(Rest(*clone), ElementsAre("b", "c"));
  EXPECT_EQ(clone->Reset(), S_OK);
  EXPECT_THAT(Rest(*clone), ElementsAre("a", "b", "c"));
}

TEST_F(Enumeration, SurvivesTheRemovalOfWhatItMet) {
  members->Skip(1);
  timeline.Call(L"Remove", {L"a"});
  EXPECT_THAT(Rest(*members), ElementsAre("b", "c"));
}

TEST_F(Enumeration, SurvivesTheRemovalOfWhatWouldBeNext) {
  members->Skip(1);
  timeline.Call(L"Remove", {L"b"});
  EXPECT_THAT(Rest(*members), ElementsAre("c"));
}

TEST_F(Enumeration, MeetsWhatWasAddedMeanwhile) {
  members->Skip(3);
  timeline.Call(L"Add", {1, L"d"});
  EXPECT_THAT(Rest(*members), ElementsAre("d"));
}

TEST_F(Enumeration, EndsWhereAllWasCleared) {
  members->Skip(1);
  timeline.Call(L"Clear");
  EXPECT_THAT(Rest(*members), IsEmpty());
}

TEST(EnumerationAlone, OutlivesTheHostsReferenceToTheTimeline) {
  Late timeline = NewTimeline();
  const Value members = timeline.Get(L"NewEnum");
  timeline = Late();
  Value member;
  EXPECT_EQ(Query<IEnumVARIANT>(members.Object())->Next(1, &member, nullptr), S_FALSE);
}

}  // namespace
}  // namespace mur::test
