#include <climits>
#include <cstring>

#include <gtest/gtest.h>

#include "tests/com/late.h"

namespace mur::test {
namespace {

const std::wstring kOddText(L"a\0b\xD800\xDC00\xDC00z\xD800", 8);

Late ControlWithMarker() {
  const Late control = NewControl();
  control.Call(L"TimeScaleMarkerAdd", {Value::Date(1), L"m"});
  return control;
}

// What comes back when a value is put as the free value of a marker.
Value RoundTrip(const Value& ValueA) {
  const Late control = ControlWithMarker();
  control.Put(L"TimeScaleMarkerUserData", {L"m", ValueA});
  return control.Get(L"TimeScaleMarkerUserData", {L"m"});
}

Value Currency(LONGLONG TenThousandthsA) {
  Value value = Value::Blank(VT_CY);
  V_CY(&value.Get()).int64 = TenThousandthsA;
  return value;
}

Value Decimal(ULONGLONG DigitsA, BYTE ScaleA) {
  Value value = Value::Blank(VT_DECIMAL);
  V_DECIMAL(&value.Get()).Lo64 = DigitsA;
  V_DECIMAL(&value.Get()).scale = ScaleA;
  return value;
}

template <class T>
Value Whole(VARTYPE TypeA, T ValueA) {
  Value value = Value::Blank(TypeA);
  std::memcpy(&V_I8(&value.Get()), &ValueA, sizeof ValueA);
  return value;
}

// An array of variants, from 1 on.
Value ArrayOf(const Values& ItemsA) {
  Value array = Value::Blank(VT_ARRAY | VT_VARIANT);
  V_ARRAY(&array.Get()) = SafeArrayCreateVector(VT_VARIANT, 1, static_cast<ULONG>(ItemsA.size()));
  LONG at = 1;
  for (Value item : ItemsA) {
    SafeArrayPutElement(V_ARRAY(&array.Get()), &at, &item);
    ++at;
  }
  return array;
}

Value ItemOf(const Value& ArrayA, LONG AtA) {
  Value item;
  SafeArrayGetElement(V_ARRAY(&ArrayA.Get()), &AtA, &item);
  return item;
}

TEST(Texts, KeepEveryUnitOfThem) {
  const Late timeline = NewTimeline();
  timeline.Put(L"Tag", {kOddText});
  EXPECT_EQ(timeline.Get(L"Tag"), Value(kOddText));
  const Late scalar(timeline.Call(L"Add", {1, kOddText}));
  EXPECT_EQ(scalar.Get(L"Key"), Value(kOddText));
  EXPECT_TRUE(scalar.IsSame(Late(timeline.Get(L"Item", {kOddText}))));
  EXPECT_EQ(timeline.Get(L"Item", {kOddText.substr(0, 1)}), Value::Nothing());
  timeline.Call(L"Clear");
}

TEST(Texts, OfLoneSurrogatesAreKeysOfTheirOwn) {
  const Late timeline = NewTimeline();
  EXPECT_NE(timeline.Call(L"Add", {1, L"\xD800"}), Value::Nothing());
  EXPECT_NE(timeline.Call(L"Add", {1, L"\xDBFF"}), Value::Nothing());
  EXPECT_NE(timeline.Call(L"Add", {1, L"\xFFFD"}), Value::Nothing());
  timeline.Call(L"Clear");
}

TEST(Texts, OfAnyLengthAreKept) {
  const std::wstring text(1 << 20, L'x');
  const Late timeline = NewTimeline();
  timeline.Put(L"Tag", {text});
  EXPECT_TRUE(timeline.Get(L"Tag") == Value(text));
}

TEST(FreeValues, ComeBackAsTheyWere) {
  for (const Value& value : {Value(),
                             Value::Null(),
                             Value(true),
                             Value(short{-7}),
                             Value(7),
                             Value(1.5f),
                             Value(1.5),
                             Value(L"text"),
                             Value(kOddText),
                             Value(L""),
                             Value::Date(36526.5),
                             Value::Date(1e9),
                             Value::Nothing(),
                             Currency(-12345),
                             Decimal(12345, 2),
                             Whole<signed char>(VT_I1, -1),
                             Whole<BYTE>(VT_UI1, 255),
                             Whole<USHORT>(VT_UI2, 65535),
                             Whole<ULONG>(VT_UI4, 0xFFFFFFFF),
                             Whole<LONGLONG>(VT_I8, LLONG_MIN),
                             Whole<ULONGLONG>(VT_UI8, ULLONG_MAX),
                             Whole<HRESULT>(VT_ERROR, E_FAIL)})
    EXPECT_EQ(RoundTrip(value), value);
}

TEST(FreeValues, OfThePlatformsIntegersAreLongs) {
  EXPECT_EQ(RoundTrip(Whole<int>(VT_INT, -7)), Value(-7));
  EXPECT_EQ(RoundTrip(Whole<unsigned>(VT_UINT, 7)), Whole<ULONG>(VT_UI4, 7));
}

TEST(FreeValues, MayBeObjectsOfAnybody) {
  const Late timeline = NewTimeline();
  EXPECT_EQ(RoundTrip(timeline), Value(timeline));
  const auto factory = server::Factory(__uuidof(::CMURTimeline));
  EXPECT_EQ(RoundTrip(Value::Unknown(factory.Get())), Value::Unknown(factory.Get()));
}

TEST(FreeValues, MayBeArraysOfArrays) {
  const Value met = RoundTrip(ArrayOf({1, L"two", ArrayOf({3.0, Value::Null()}), NewTimeline()}));
  ASSERT_EQ(met.Type(), VT_ARRAY | VT_VARIANT);
  EXPECT_EQ(ItemOf(met, 1), Value(1));
  EXPECT_EQ(ItemOf(met, 2), Value(L"two"));
  const Value inner = ItemOf(met, 3);
  ASSERT_EQ(inner.Type(), VT_ARRAY | VT_VARIANT);
  EXPECT_EQ(ItemOf(inner, 1), Value(3.0));
  EXPECT_EQ(ItemOf(inner, 2), Value::Null());
  EXPECT_TRUE(Late(ItemOf(met, 4)).As<::_CMURTimeline>());
}

TEST(FreeValues, AreCopiesOfWhatWasReferredTo) {
  const Late control = ControlWithMarker();
  Value text = L"before";
  VARIANT reference{};
  V_VT(&reference) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&reference) = &text;
  const auto early = Query<::_MURTimelineRender>(control.Pointer());
  EXPECT_EQ(early->put_TimeScaleMarkerUserData(Value(L"m").Get(), reference), S_OK);
  text = L"after";
  EXPECT_EQ(control.Get(L"TimeScaleMarkerUserData", {L"m"}), Value(L"before"));
}

TEST(FreeValues, AreTheSameByTheMarkerItself) {
  const Late control = ControlWithMarker();
  const Late marker(control.Get(L"TimeScaleMarkerDefinition", {L"m"}));
  marker.Put(L"UserData", {Currency(10000)});
  EXPECT_EQ(control.Get(L"TimeScaleMarkerUserData", {L"m"}), Currency(10000));
  marker.Put(L"UserData", {control});
  EXPECT_EQ(control.Get(L"TimeScaleMarkerUserData", {L"m"}), Value(control));
  control.Put(L"TimeScaleMarkerUserData", {L"m", Value()});
}

// Numbers of every kind select by position, decimals and currencies among them.
TEST(Keys, MayBeNumbersOfEveryKind) {
  const Late timeline = NewTimeline();
  timeline.Call(L"Add", {1, L"a"});
  const Late second(timeline.Call(L"Add", {1, L"b"}));
  for (const Value& position :
       {Value(2), Value(short{2}), Value(2.0), Value(2.0f), Currency(20000), Decimal(20, 1),
        Whole<BYTE>(VT_UI1, 2), Whole<LONGLONG>(VT_I8, 2), Value::Date(2)})
    EXPECT_TRUE(second.IsSame(Late(timeline.Get(L"Item", {position})))) << position.Type();
  for (const Value& none : {Value(), Value::Null(), Value::Nothing(), Value(timeline), Value::Missing()})
    EXPECT_EQ(timeline.Try(L"TrackKey", DISPATCH_PROPERTYGET, {none}).value.Text(), L"");
  timeline.Call(L"Clear");
}

}  // namespace
}  // namespace mur::test
