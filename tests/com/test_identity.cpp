#include <gtest/gtest.h>

#include "tests/com/late.h"

namespace mur::test {

// How the test framework shows a class.
namespace server {
void PrintTo(const PublishedClass& ClassA, std::ostream* StreamA) {
  *StreamA << ClassA.name;
}
}  // namespace server

namespace {

using server::PublishedClass;

// Every interface that anything of the server might have.
const std::vector<IID>& AllInterfaces() {
  static const std::vector<IID> kInterfaces = {__uuidof(IUnknown),
                                               __uuidof(IDispatch),
                                               __uuidof(::IMURTimelineObject),
                                               __uuidof(::IMURTLObjectEventSink),
                                               __uuidof(::_CMURTimeline),
                                               __uuidof(::_CMURTimelineGroup),
                                               __uuidof(::_CMURTimelineScalar),
                                               __uuidof(::_CMURTimelineMedia),
                                               __uuidof(::_CMURTLRenderConfig),
                                               __uuidof(::IMURTLTimeScaleMarker),
                                               __uuidof(::_MURTimelineRender),
                                               __uuidof(ISupportErrorInfo),
                                               __uuidof(IProvideClassInfo),
                                               __uuidof(IProvideClassInfo2),
                                               __uuidof(IConnectionPointContainer),
                                               __uuidof(IOleObject),
                                               __uuidof(IOleWindow),
                                               __uuidof(IOleInPlaceObject),
                                               __uuidof(IOleInPlaceActiveObject),
                                               __uuidof(IOleControl),
                                               __uuidof(IViewObject),
                                               __uuidof(IViewObject2),
                                               __uuidof(IViewObjectEx),
                                               __uuidof(IDataObject),
                                               __uuidof(IQuickActivate),
                                               __uuidof(IPersist),
                                               __uuidof(IPersistStream),
                                               __uuidof(IPersistStreamInit),
                                               __uuidof(IPersistStorage),
                                               __uuidof(IPersistPropertyBag)};
  return kInterfaces;
}

Ref<IUnknown> Asked(IUnknown& ObjectA, const IID& InterfaceA) {
  void* found = nullptr;
  const HRESULT result = ObjectA.QueryInterface(InterfaceA, &found);
  EXPECT_EQ(SUCCEEDED(result), found != nullptr);
  return TakeOver(static_cast<IUnknown*>(found));
}

// The rules by which one object is known by all of its interfaces.
void ExpectOneObject(const Ref<IUnknown>& IdentityA) {
  std::vector<std::pair<IID, Ref<IUnknown>>> offered;
  for (const IID& id : AllInterfaces())
    if (auto found = Asked(*IdentityA, id)) offered.emplace_back(id, std::move(found));
  for (const auto& [from, object] : offered) {
    EXPECT_EQ(Asked(*object, __uuidof(IUnknown)), IdentityA);
    for (const IID& to : AllInterfaces())
      EXPECT_EQ(static_cast<bool>(Asked(*object, to)), static_cast<bool>(Asked(*IdentityA, to)));
  }
}

class EveryClass : public testing::TestWithParam<PublishedClass> {};
INSTANTIATE_TEST_SUITE_P(Server, EveryClass, testing::ValuesIn(server::Classes()),
                         [](const auto& ClassA) { return ClassA.param.name; });

TEST_P(EveryClass, IsOneObjectByWhateverInterface) {
  ExpectOneObject(server::Create(GetParam().id));
}

TEST_P(EveryClass, CountsItsReferencesBackToZero) {
  IUnknown* object = server::Create(GetParam().id).Detach();
  EXPECT_EQ(object->AddRef(), 2u);
  for (const IID& id : AllInterfaces()) Asked(*object, id);
  EXPECT_EQ(object->Release(), 1u);
  EXPECT_FALSE(server::IsIdle());
  EXPECT_EQ(object->Release(), 0u);
  EXPECT_TRUE(server::IsIdle());
}

TEST_P(EveryClass, CanBeMadeByAnyOfItsInterfaces) {
  const auto object = server::Create(GetParam().id);
  for (const IID& id : AllInterfaces()) {
    void* made = nullptr;
    const HRESULT result = server::Factory(GetParam().id)->CreateInstance(nullptr, id, &made);
    const auto taken = TakeOver(static_cast<IUnknown*>(made));
    EXPECT_EQ(result, Asked(*object, id) ? S_OK : E_NOINTERFACE);
    EXPECT_EQ(static_cast<bool>(taken), SUCCEEDED(result));
  }
}

TEST_P(EveryClass, RefusesToBePartOfAnotherObject) {
  const auto outer = server::Create(__uuidof(::CMURTimeline));
  void* made = outer.Get();
  EXPECT_EQ(server::Factory(GetParam().id)->CreateInstance(outer.Get(), IID_IUnknown, &made),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(made, nullptr);
}

TEST_P(EveryClass, RefusesToAnswerNowhere) {
  const auto object = server::Create(GetParam().id);
  EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(server::Factory(GetParam().id)->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(server::Factory(GetParam().id)->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(server::GetClassObject(GetParam().id, IID_IClassFactory, nullptr), E_POINTER);
  const auto late = Query<IDispatch>(object.Get());
  EXPECT_EQ(late->GetTypeInfoCount(nullptr), E_POINTER);
  EXPECT_EQ(late->GetTypeInfo(0, 0, nullptr), E_POINTER);
  EXPECT_EQ(late->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr), E_POINTER);
  EXPECT_EQ(late->Invoke(0, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr), E_POINTER);
}

TEST_P(EveryClass, LeavesNoPointerToWhatItDoesNotOffer) {
  const auto object = server::Create(GetParam().id);
  void* found = object.Get();
  EXPECT_EQ(object->QueryInterface(__uuidof(IObjectSafety), &found), E_NOINTERFACE);
  EXPECT_EQ(found, nullptr);
  found = object.Get();
  EXPECT_EQ(object->QueryInterface(__uuidof(IStream), &found), E_NOINTERFACE);
  EXPECT_EQ(found, nullptr);
}

TEST_P(EveryClass, SaysWhichClassItIs) {
  const auto information = Query<IProvideClassInfo2>(server::Create(GetParam().id).Get());
  ITypeInfo* found = nullptr;
  ASSERT_EQ(information->GetClassInfo(&found), S_OK);
  EXPECT_EQ(ToUtf8(NameIn(*TakeOver(found))), GetParam().name);
  EXPECT_EQ(information->GetClassInfo(nullptr), E_POINTER);
  EXPECT_EQ(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr), E_POINTER);
}

TEST_P(EveryClass, NamesItsEventsWhereItHasAny) {
  const auto object = server::Create(GetParam().id);
  const auto information = Query<IProvideClassInfo2>(object.Get());
  GUID source{};
  const bool hasEvents = static_cast<bool>(Query<IConnectionPointContainer>(object.Get()));
  EXPECT_EQ(hasEvents, GetParam().name == "CMURTimeline" || GetParam().name == "MURTimelineRender");
  EXPECT_EQ(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source), hasEvents ? S_OK : E_UNEXPECTED);
  EXPECT_EQ(information->GetGUID(7, &source), E_INVALIDARG);
  EXPECT_EQ(source, GUID_NULL);
}

TEST_P(EveryClass, DescribesItsErrorsOnItsPublishedInterfaces) {
  const auto object = server::Create(GetParam().id);
  const auto support = Query<ISupportErrorInfo>(object.Get());
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IDispatch), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(IStream)), S_FALSE);
  const bool isObject = static_cast<bool>(Query<::IMURTimelineObject>(object.Get()));
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(::IMURTimelineObject)), isObject ? S_OK : S_FALSE);
}

TEST_P(EveryClass, GivesTheDescriptionOfItsDefaultInterface) {
  const Late object = New(GetParam().id);
  UINT count = 0;
  EXPECT_EQ(object.Pointer()->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1u);
  ITypeInfo* found = nullptr;
  ASSERT_EQ(object.Pointer()->GetTypeInfo(0, LOCALE_USER_DEFAULT, &found), S_OK);
  const std::string defaultInterface = "_" + GetParam().name;
  EXPECT_EQ(ToUtf8(NameIn(*TakeOver(found))), defaultInterface);
  EXPECT_EQ(object.Pointer()->GetTypeInfo(1, LOCALE_USER_DEFAULT, &found), DISP_E_BADINDEX);
  EXPECT_EQ(found, nullptr);
}

TEST(Factory, IsOneObjectByBothOfItsInterfaces) {
  const auto factory = server::Factory(__uuidof(::CMURTimeline));
  EXPECT_EQ(Asked(*factory, IID_IUnknown), Asked(*Asked(*factory, IID_IUnknown), IID_IUnknown));
  EXPECT_TRUE(Query<IClassFactory>(Asked(*factory, IID_IUnknown).Get()));
  EXPECT_FALSE(Query<IDispatch>(factory.Get()));
}

TEST(Factory, IsNotThereForClassesOfOthers) {
  void* found = &found;
  EXPECT_EQ(server::GetClassObject(IID_IUnknown, IID_IClassFactory, &found), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(found, nullptr);
  found = &found;
  EXPECT_EQ(server::GetClassObject(__uuidof(::CMURTimeline), IID_IDispatch, &found), E_NOINTERFACE);
  EXPECT_EQ(found, nullptr);
}

TEST(Factory, KeepsTheServerWhileItIsHeldOrLocked) {
  {
    const auto factory = server::Factory(__uuidof(::CMURTimeline));
    EXPECT_FALSE(server::IsIdle());
    EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  }
  EXPECT_FALSE(server::IsIdle());
  EXPECT_EQ(server::Factory(__uuidof(::CMURTLRenderConfig))->LockServer(FALSE), S_OK);
  EXPECT_TRUE(server::IsIdle());
}

TEST(Marker, IsOneObjectButOfNoClass) {
  const Late control = NewControl();
  control.Call(L"TimeScaleMarkerAdd", {Value::Date(1), L"m"});
  const Late marker(control.Get(L"TimeScaleMarkerDefinition", {L"m"}));
  ExpectOneObject(marker.Identity());
  EXPECT_FALSE(Query<IProvideClassInfo>(marker.Pointer()));
}

}  // namespace
}  // namespace mur::test
