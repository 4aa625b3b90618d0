#include <gtest/gtest.h>

#include "tests/com/late.h"

namespace mur::test {
namespace {

constexpr WORD kMethodOrGet = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

// A value by reference to what lies elsewhere.
Value ByReference(Value& ValueA) {
  VARIANT reference{};
  V_VT(&reference) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&reference) = &ValueA;
  Value result;
  result.Get() = reference;
  return result;
}

class LateCalls : public testing::Test {
 protected:
  ~LateCalls() override { timeline.Call(L"Clear"); }

  std::string KeyAt(int PositionA) const {
    return ToUtf8(Late(timeline.Get(L"Item", {PositionA})).Get(L"Key").Text());
  }
  std::string Refusal(std::wstring_view MemberA, WORD WayA, const Values& ArgumentsA) const {
    const Outcome outcome = timeline.Try(MemberA, WayA, ArgumentsA);
    EXPECT_EQ(outcome.value, Value());
    return ResultText(outcome.result) +
           (outcome.wrong == UINT(-1) ? "" : " " + std::to_string(outcome.wrong));
  }

  const Late timeline = NewTimeline();
};

TEST_F(LateCalls, TakeArgumentsByNameInAnyOrder) {
  timeline.Try(L"Add", DISPATCH_METHOD, {1, true, L"K"}, {L"IsTrackA", L"sKey"});
  timeline.Try(L"Add", DISPATCH_METHOD, {L"L", 2}, {L"sKey", L"ObjectTypeA"});
  EXPECT_EQ(KeyAt(1), "K");
  EXPECT_EQ(timeline.Get(L"NTrackKeys"), Value(short{1}));
  EXPECT_EQ(KeyAt(2), "L");
  EXPECT_EQ(timeline.Try(L"Add", DISPATCH_METHOD, {1}, {L"ColourA"}).result, DISP_E_UNKNOWNNAME);
}

TEST_F(LateCalls, MayLeaveOptionalArgumentsOut) {
  timeline.Call(L"Add", {0});
  timeline.Call(L"Add", {0, Value::Missing()});
  timeline.Call(L"Add", {0, Value::Missing(), true});
  EXPECT_EQ(KeyAt(3), "Key_000002");
  EXPECT_EQ(timeline.Get(L"NTrackKeys"), Value(short{1}));
}

TEST_F(LateCalls, FindTheDefaultOfAnArgumentByReference) {
  const Late scalar(timeline.Call(L"Add", {1, L"S"}));
  scalar.Put(L"WorldTimeT0", {Value::Date(100)});
  const Value start = Value::Date(100);
  EXPECT_EQ(scalar.Call(L"SpansTime", {start}), Value(true));
  EXPECT_EQ(scalar.Call(L"SpansTime", {start, Value::Missing()}), Value(true));
  EXPECT_EQ(scalar.Call(L"SpansTime", {start, false}), Value(false));
  EXPECT_EQ(scalar.Call(L"SpansTime", {start, 0}), Value(false));
}

TEST_F(LateCalls, AreRefusedWithoutWhatIsNeeded) {
  EXPECT_EQ(Refusal(L"Add", DISPATCH_METHOD, {}), "DISP_E_BADPARAMCOUNT");
  EXPECT_EQ(Refusal(L"Add", DISPATCH_METHOD, {1, L"K", true, 4}), "DISP_E_BADPARAMCOUNT");
  EXPECT_EQ(Refusal(L"Clear", DISPATCH_METHOD, {1}), "DISP_E_BADPARAMCOUNT");
  EXPECT_EQ(Refusal(L"AsString", DISPATCH_METHOD, {Value::Missing()}), "DISP_E_PARAMNOTOPTIONAL 0");
  EXPECT_EQ(Refusal(L"Add", DISPATCH_METHOD, {Value::Missing(), L"K"}), "DISP_E_PARAMNOTOPTIONAL 1");
}

// The number of the argument is that of the caller's list, which goes backwards.
TEST_F(LateCalls, AreToldWhichArgumentIsOfTheWrongType) {
  EXPECT_EQ(Refusal(L"AutoID", DISPATCH_PROPERTYPUT, {L"many"}), "DISP_E_TYPEMISMATCH 0");
  EXPECT_EQ(Refusal(L"AutoID", DISPATCH_PROPERTYPUT, {1e12}), "DISP_E_OVERFLOW 0");
  EXPECT_EQ(Refusal(L"Add", DISPATCH_METHOD, {L"group", L"K"}), "DISP_E_TYPEMISMATCH 1");
  EXPECT_EQ(Refusal(L"Add", DISPATCH_METHOD, {1, L"K", L"perhaps"}), "DISP_E_TYPEMISMATCH 0");
  EXPECT_EQ(Refusal(L"Insert", DISPATCH_METHOD, {1, L"K"}), "DISP_E_TYPEMISMATCH 1");
  EXPECT_EQ(Refusal(L"Insert", DISPATCH_METHOD, {timeline, L"K"}), "DISP_E_TYPEMISMATCH 1");
  EXPECT_EQ(Refusal(L"Insert", DISPATCH_METHOD, {Value(), L"K"}), "DISP_E_TYPEMISMATCH 1");
  EXPECT_EQ(Refusal(L"RemoveTrackKey", DISPATCH_METHOD, {Value::Blank(0x7F)}), "DISP_E_BADVARTYPE 0");
}

TEST_F(LateCalls, AreRefusedWhereThereIsNoSuchMember) {
  EXPECT_EQ(Refusal(L"Colour", DISPATCH_PROPERTYGET, {}), "DISP_E_UNKNOWNNAME");
  EXPECT_EQ(Refusal(L"QueryInterface", DISPATCH_METHOD, {}), "DISP_E_UNKNOWNNAME");
  EXPECT_EQ(Refusal(L"Count", DISPATCH_PROPERTYPUT, {1}), "DISP_E_MEMBERNOTFOUND");
  EXPECT_EQ(Refusal(L"Clear", DISPATCH_PROPERTYGET, {}), "DISP_E_MEMBERNOTFOUND");
  for (const DISPID id : {DISPID(1), DISPID(-1), DISPID(-5), DISPID(0x60010000), DISPID(0x7FFFFFFF)})
    EXPECT_EQ(timeline.Invoke(id, kMethodOrGet, {}).result, DISP_E_MEMBERNOTFOUND) << id;
}

TEST_F(LateCalls, TellWhichOfSeveralNamesIsUnknown) {
  wchar_t member[] = L"Add", argument[] = L"ColourA";
  LPOLESTR names[] = {member, argument};
  DISPID ids[2] = {7, 7};
  EXPECT_EQ(timeline.Pointer()->GetIDsOfNames(IID_NULL, names, 2, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[1], DISPID_UNKNOWN);
  EXPECT_EQ(timeline.Pointer()->GetIDsOfNames(IID_IUnknown, names, 1, 0, ids), DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(timeline.Pointer()->GetIDsOfNames(IID_NULL, names, 0, 0, ids), E_INVALIDARG);
}

TEST_F(LateCalls, HaveNoOtherInterfaceOfTheCall) {
  DISPPARAMS none{};
  EXPECT_EQ(timeline.Pointer()->Invoke(0x60030017, IID_IUnknown, 0, DISPATCH_METHOD, &none, nullptr, nullptr,
                                       nullptr),
            DISP_E_UNKNOWNINTERFACE);
}

TEST_F(LateCalls, ReachTheDefaultMemberAsEnginesAsk) {
  timeline.Call(L"Add", {1, L"A"});
  for (const WORD way : {WORD{DISPATCH_METHOD}, WORD{DISPATCH_PROPERTYGET}, kMethodOrGet}) {
    EXPECT_EQ(Late(timeline.Invoke(DISPID_VALUE, way, {L"A"}).value).Get(L"Key"), Value(L"A"));
    EXPECT_EQ(timeline.Invoke(DISPID_NEWENUM, way, {}).value.Type(), VT_UNKNOWN);
  }
  const Value nothing = timeline.Invoke(DISPID_VALUE, kMethodOrGet, {L"B"}).value;
  EXPECT_EQ(nothing, Value::Nothing());
}

TEST_F(LateCalls, PutByEitherWay) {
  const Late group(timeline.Call(L"Add", {0, L"G"})), control = NewControl();
  for (const WORD way : {WORD{DISPATCH_PROPERTYPUT}, WORD{DISPATCH_PROPERTYPUTREF}}) {
    EXPECT_EQ(control.Try(L"Timeline", way, {timeline}).result, S_OK);
    EXPECT_TRUE(timeline.IsSame(Late(control.Get(L"Timeline"))));
    EXPECT_EQ(control.Try(L"Timeline", way, {Value::Nothing()}).result, S_OK);
    EXPECT_EQ(control.Get(L"Timeline"), Value::Nothing());
    EXPECT_EQ(group.Try(L"EventSink", way, {timeline}).result, S_OK);
    EXPECT_EQ(group.Try(L"Tag", way, {L"tag"}).result, S_OK);
  }
}

TEST_F(LateCalls, TakeNullForNoObject) {
  const Late control = NewControl();
  EXPECT_EQ(control.Try(L"Timeline", DISPATCH_PROPERTYPUT, {Value::Null()}).result, S_OK);
  EXPECT_EQ(control.Get(L"Timeline"), Value::Nothing());
  EXPECT_EQ(timeline.Call(L"Insert", {Value::Null(), L"K"}), Value(false));
}

TEST_F(LateCalls, TakeArgumentsByReference) {
  Value type = 1, key = L"K", position = 1;
  timeline.Call(L"Add", {ByReference(type), ByReference(key)});
  EXPECT_TRUE(Late(timeline.Get(L"Item", {ByReference(position)})));
  EXPECT_EQ(key, Value(L"K"));
}

TEST_F(LateCalls, ConvertAsTheAutomationRuntimeDoes) {
  timeline.Put(L"AutoID", {L"12"});
  EXPECT_EQ(timeline.Get(L"AutoID"), Value(12));
  timeline.Put(L"AutoID", {2.5});
  EXPECT_EQ(timeline.Get(L"AutoID"), Value(2));
  timeline.Put(L"Tag", {7});
  EXPECT_EQ(timeline.Get(L"Tag"), Value(L"7"));
  timeline.Put(L"Duration", {Value()});
  EXPECT_EQ(timeline.Get(L"Duration"), Value(0.0));
}

TEST_F(LateCalls, GiveValuesOfThePublishedTypes) {
  timeline.Put(L"WorldTimeT0", {Value::Date(36526.25)});
  EXPECT_EQ(timeline.Get(L"WorldTimeT0"), Value::Date(36526.25));
  EXPECT_EQ(timeline.Get(L"Count"), Value(0));
  EXPECT_EQ(timeline.Get(L"NTrackKeys"), Value(short{0}));
  EXPECT_EQ(timeline.Get(L"Duration"), Value(3600.0));
  EXPECT_EQ(timeline.Call(L"AddTrackKey", {L"t"}), Value());
  EXPECT_EQ(timeline.Call(L"Specifics_AsString", {L""}).Type(), VT_BSTR);
  EXPECT_EQ(NewControl().Get(L"BarHeight"), Value(40.0f));
}

// Some hosts want no result.
TEST_F(LateCalls, NeedNowhereToAnswerTo) {
  VARIANT type = Value(1).Get();
  DISPPARAMS given{&type, nullptr, 1, 0};
  EXPECT_EQ(
      timeline.Pointer()->Invoke(0x6003001C, IID_NULL, 0, DISPATCH_METHOD, &given, nullptr, nullptr, nullptr),
      S_OK);
  EXPECT_EQ(timeline.Get(L"Count"), Value(1));
}

}  // namespace
}  // namespace mur::test
