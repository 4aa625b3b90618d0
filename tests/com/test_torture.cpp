#include <functional>
#include <set>

#include <gtest/gtest.h>

#include "tests/com/late.h"
#include "tests/com/memory.h"

// Every member of every interface is called with values of every type in every place: whatever a host passes,
// the answer is a result that hosts know, nothing ends and nothing leaks.

namespace mur::test {
namespace {

constexpr std::ptrdiff_t kMostGrowth = 64 * 1024;

// What a late-bound call may answer.
const std::set<HRESULT>& AllowedResults() {
  static const std::set<HRESULT> kAllowed = {S_OK,
                                             DISP_E_EXCEPTION,
                                             DISP_E_TYPEMISMATCH,
                                             DISP_E_OVERFLOW,
                                             DISP_E_BADVARTYPE,
                                             DISP_E_BADPARAMCOUNT,
                                             DISP_E_PARAMNOTOPTIONAL,
                                             DISP_E_PARAMNOTFOUND};
  return kAllowed;
}

// What a member itself may fail with: errors of the automation runtime, those of wrong pointers, and of
// values that the platform cannot copy.
bool IsAllowedFailure(HRESULT CodeA) {
  return HRESULT_FACILITY(CodeA) == FACILITY_CONTROL || CodeA == E_POINTER || CodeA == DISP_E_BADVARTYPE;
}

/// A member as the library describes it.
struct MemberToCall {
  std::string name;
  DISPID id;
  WORD way;
  std::size_t count;
};

std::vector<MemberToCall> MembersOf(const Late& ObjectA) {
  ITypeInfo* found = nullptr;
  Require(ObjectA.Pointer()->GetTypeInfo(0, LOCALE_USER_DEFAULT, &found), "GetTypeInfo");
  const auto type = TakeOver(found);
  std::vector<MemberToCall> members;
  FUNCDESC* function = nullptr;
  for (UINT i = 0; type->GetFuncDesc(i, &function) == S_OK; ++i) {
    const std::string name = ToUtf8(NameIn(*type, function->memid));
    const bool isOurs = !(function->wFuncFlags & FUNCFLAG_FRESTRICTED);
    // The dialog would wait for its user.
    if (isOurs && name != "ShowEditor")
      members.push_back({name, function->memid, static_cast<WORD>(function->invkind),
                         static_cast<std::size_t>(function->cParams)});
    type->ReleaseFuncDesc(function);
  }
  return members;
}

/// A value of each type there is, its content empty, and a reference to an empty content.
std::vector<VARIANT> ValuesOfEveryType() {
  static VARIANT sContent{};
  std::vector<VARIANT> values;
  for (const VARTYPE flags : {VARTYPE{0}, VARTYPE{VT_BYREF}, VARTYPE{VT_ARRAY}, VARTYPE{VT_ARRAY | VT_BYREF}})
    for (VARTYPE type = 0; type <= VT_UINT + 20; ++type) {
      VARIANT value{};
      V_VT(&value) = static_cast<VARTYPE>(type | flags);
      if (flags & VT_BYREF) V_BYREF(&value) = &sContent;
      values.push_back(value);
    }
  VARIANT missing{};
  V_VT(&missing) = VT_ERROR;
  V_ERROR(&missing) = DISP_E_PARAMNOTFOUND;
  values.push_back(missing);
  return values;
}

class Torturer {
 public:
  explicit Torturer(Late ObjectA) : mObject(std::move(ObjectA)), mMembers(MembersOf(mObject)) {}

  void TryAll() const {
    static const auto kValues = ValuesOfEveryType();
    for (const MemberToCall& member : mMembers) {
      for (std::size_t count = 0; count <= member.count + 1; ++count) Call(member, Usual(count));
      for (std::size_t place = 0; place < member.count; ++place)
        for (const VARIANT& value : kValues) {
          auto arguments = Usual(member.count);
          arguments[place] = value;
          Call(member, std::move(arguments));
        }
    }
  }

 private:
  // Numbers do for most arguments.
  static std::vector<VARIANT> Usual(std::size_t CountA) {
    VARIANT one{};
    V_VT(&one) = VT_I4;
    V_I4(&one) = 1;
    return std::vector<VARIANT>(CountA, one);
  }

  void Call(const MemberToCall& MemberA, std::vector<VARIANT> ArgumentsA) const {
    DISPID put = DISPID_PROPERTYPUT;
    const bool isPut =
        (MemberA.way & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) && !ArgumentsA.empty();
    for (VARIANT* const result : {static_cast<VARIANT*>(nullptr), &mResult}) {
      DISPPARAMS given{ArgumentsA.data(), isPut ? &put : nullptr, static_cast<UINT>(ArgumentsA.size()),
                       isPut ? 1u : 0u};
      EXCEPINFO error{};
      const HRESULT answer = mObject.Pointer()->Invoke(MemberA.id, IID_NULL, LOCALE_USER_DEFAULT, MemberA.way,
                                                       &given, result, &error, nullptr);
      EXPECT_TRUE(AllowedResults().count(answer)) << MemberA.name << " " << ResultText(answer);
      EXPECT_TRUE(answer != DISP_E_EXCEPTION || IsAllowedFailure(error.scode))
          << MemberA.name << " " << ResultText(error.scode);
      for (BSTR text : {error.bstrSource, error.bstrDescription, error.bstrHelpFile}) SysFreeString(text);
      VariantClear(&mResult);
    }
  }

  const Late mObject;
  const std::vector<MemberToCall> mMembers;
  mutable VARIANT mResult{};
};

/// Tortures an object of each kind twice, so that what is made once is there, and then a third time.
void ExpectNoLeak(const std::function<Late()>& MakeA) {
  const auto work = [&] {
    const Late object = MakeA();
    Torturer(object).TryAll();
    if (const Late common = object.As<::IMURTimelineObject>()) {
      Torturer(common).TryAll();
      common.Call(L"Free");
    }
    if (const Late sink = object.As<::IMURTLObjectEventSink>()) {
      Torturer(sink).TryAll();
      object.Call(L"Clear");
    }
  };
  work();
  work();
  EXPECT_LT(GrowthBy(work), kMostGrowth);
  EXPECT_TRUE(server::IsIdle());
}

TEST(Torture, OfATimelineLeavesNothing) {
  ExpectNoLeak(&NewTimeline);
}

TEST(Torture, OfAGroupLeavesNothing) {
  ExpectNoLeak(&NewGroup);
}

TEST(Torture, OfAScalarLeavesNothing) {
  ExpectNoLeak(&NewScalar);
}

TEST(Torture, OfAMediaClipLeavesNothing) {
  ExpectNoLeak(&NewMedia);
}

TEST(Torture, OfARenderConfigurationLeavesNothing) {
  ExpectNoLeak([] { return New(__uuidof(::CMURTLRenderConfig)); });
}

TEST(Torture, OfAControlLeavesNothing) {
  ExpectNoLeak(&NewControl);
}

TEST(Torture, OfAMarkerLeavesNothing) {
  ExpectNoLeak([] {
    const Late control = NewControl();
    control.Call(L"TimeScaleMarkerAdd", {Value::Date(1), L"m"});
    return Late(control.Get(L"TimeScaleMarkerDefinition", {L"m"}));
  });
}

// Early-bound hosts may pass null pointers for anything that comes by pointer.
TEST(Torture, OfOutPointersThatAreNullIsAnswered) {
  const Late media = NewMedia();
  const auto object = Query<::IMURTimelineObject>(media.Pointer());
  EXPECT_EQ(object->get_Key(nullptr), E_POINTER);
  EXPECT_EQ(object->get_EventSink(nullptr), E_POINTER);
  EXPECT_EQ(object->get_Parent(nullptr), E_POINTER);
  EXPECT_EQ(object->get_ObjectType(nullptr), E_POINTER);
  EXPECT_EQ(object->AsString(nullptr, nullptr), E_POINTER);
  EXPECT_EQ(object->get_Count(nullptr), E_POINTER);
  EXPECT_EQ(object->get_Item(Value(1).Get(), nullptr), E_POINTER);
  EXPECT_EQ(object->Add(nullptr, nullptr), E_POINTER);
  EXPECT_EQ(object->Remove(Value(1).Get(), nullptr), E_POINTER);
  EXPECT_EQ(object->get_WorldTimeT0(nullptr), E_POINTER);
  EXPECT_EQ(object->SpansTime(0, nullptr, nullptr), E_POINTER);
  const auto sink = Query<::IMURTLObjectEventSink>(NewTimeline().Pointer());
  EXPECT_EQ(sink->ObjectAdopted(nullptr, nullptr), E_POINTER);
  EXPECT_EQ(sink->ObjectPropertyChanged(nullptr, nullptr, Value().Get()), E_POINTER);
}

}  // namespace
}  // namespace mur::test
