#include <gtest/gtest.h>

#include "tests/com/late.h"

namespace mur::test {
namespace {

constexpr HRESULT kOverflow = static_cast<HRESULT>(0x800A0006);

// What the platform holds of the last error of this thread, taken from it.
Ref<IErrorInfo> LastError() {
  IErrorInfo* error = nullptr;
  GetErrorInfo(0, &error);
  return TakeOver(error);
}

std::string DescriptionOf(IErrorInfo& ErrorA) {
  BSTR text = nullptr;
  ErrorA.GetDescription(&text);
  const std::string result = ToUtf8({text, SysStringLen(text)});
  SysFreeString(text);
  return result;
}

// A time line with one track key more than a 16-bit number can count.
Late TimelineWithTooManyTracks() {
  const Late timeline = NewTimeline();
  const auto early = Query<::_CMURTimeline>(timeline.Pointer());
  for (int i = 0; i < 32768; ++i) {
    Value ignored;
    early->AddTrackKey(Text(std::to_wstring(i)), &ignored);
  }
  return timeline;
}

TEST(Errors, AreThoseOfTheAutomationRuntimeWithTheirTexts) {
  const Late timeline = TimelineWithTooManyTracks();
  const Outcome outcome = timeline.Try(L"NTrackKeys", DISPATCH_PROPERTYGET);
  EXPECT_EQ(outcome.result, DISP_E_EXCEPTION);
  EXPECT_EQ(outcome.code, kOverflow);
  EXPECT_EQ(ToUtf8(outcome.source), "MURTimeline");
  EXPECT_EQ(ToUtf8(outcome.description), "Overflow");
  EXPECT_EQ(outcome.value, Value());
}

TEST(Errors, AreDescribedToEarlyBoundCallers) {
  const Late timeline = TimelineWithTooManyTracks();
  const auto early = Query<::_CMURTimeline>(timeline.Pointer());
  LastError();
  short count = 7;
  EXPECT_EQ(early->get_NTrackKeys(&count), kOverflow);
  EXPECT_EQ(count, 0);
  const auto error = LastError();
  ASSERT_TRUE(error);
  EXPECT_EQ(DescriptionOf(*error), "Overflow");
}

TEST(Errors, AreNotLeftOverForTheNextCall) {
  const Late timeline = TimelineWithTooManyTracks();
  short count = 0;
  Query<::_CMURTimeline>(timeline.Pointer())->get_NTrackKeys(&count);
  timeline.Get(L"Tag");
  EXPECT_FALSE(LastError());
}

TEST(Errors, OfACollectionOfChildrenAreRaisedOnlyToItsReader) {
  const Late group = NewGroup();
  const Late child = NewScalar();
  const auto early = Query<::_CMURTimelineGroup>(group.Pointer());
  const auto added = Query<::IMURTimelineObject>(child.Pointer());
  for (int i = 0; i < 32768; ++i) {
    ::IMURTimelineObject* passed = added.Get();
    EXPECT_EQ(early->Add(&passed, Text(std::to_wstring(i))), S_OK);
  }
  short count = 0;
  EXPECT_EQ(early->get_Count(&count), kOverflow);
  Value removed(group.Call(L"Remove", {1}));
  EXPECT_EQ(early->get_Count(&count), S_OK);
  EXPECT_EQ(count, 32767);
  child.Call(L"Free");
  group.Call(L"Free");
}

TEST(Errors, OfWrongPointersAreThoseOfThePlatform) {
  const Late timeline = NewTimeline();
  const auto early = Query<::_CMURTimeline>(timeline.Pointer());
  EXPECT_EQ(early->get_Tag(nullptr), E_POINTER);
  EXPECT_EQ(early->get_Item(nullptr, nullptr), E_POINTER);
  ::IMURTimelineObject* found = nullptr;
  EXPECT_EQ(early->get_Item(nullptr, &found), E_POINTER);
  EXPECT_EQ(early->Remove(nullptr), E_POINTER);
  VARIANT_BOOL inserted = VARIANT_TRUE;
  EXPECT_EQ(early->Insert(nullptr, nullptr, &inserted), E_POINTER);
  EXPECT_EQ(inserted, VARIANT_FALSE);
  EXPECT_EQ(early->Add(::murtlotGroup, nullptr, VARIANT_FALSE, nullptr), E_POINTER);
}

TEST(Errors, OfAMissingTextAreNone) {
  const Late timeline = NewTimeline();
  const auto early = Query<::_CMURTimeline>(timeline.Pointer());
  EXPECT_EQ(early->put_Tag(nullptr), S_OK);
  EXPECT_EQ(timeline.Get(L"Tag"), Value(L""));
}

}  // namespace
}  // namespace mur::test
