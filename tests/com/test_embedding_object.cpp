#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"
#include "tests/com/container/picture.h"

namespace mur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr SIZEL kTwoInches{5080, 5080};

std::string SizeOf(IOleObject& ObjectA) {
  SIZEL size{};
  ObjectA.GetExtent(DVASPECT_CONTENT, &size);
  return std::to_string(size.cx) + "x" + std::to_string(size.cy);
}

std::vector<std::string> VerbsOf(IOleObject& ObjectA) {
  IEnumOLEVERB* verbs = nullptr;
  Require(ObjectA.EnumVerbs(&verbs), "EnumVerbs");
  const auto all = TakeOver(verbs);
  std::vector<std::string> result;
  OLEVERB verb{};
  while (all->Next(1, &verb, nullptr) == S_OK) {
    result.push_back(std::to_string(verb.lVerb) + " " + ToUtf8(verb.lpszVerbName));
    CoTaskMemFree(verb.lpszVerbName);
  }
  return result;
}

TEST(OleObject, BeginsAt480By160LogicalPixels) {
  const Embedded embedded;
  EXPECT_EQ(SizeOf(embedded.Object()), "12700x4233");
}

TEST(OleObject, LaysTheControlOutForItsExtentWithoutAWindow) {
  const Embedded embedded;
  SIZEL size{12700, 5080};
  EXPECT_EQ(embedded.Object().SetExtent(DVASPECT_CONTENT, &size), S_OK);
  EXPECT_EQ(SizeOf(embedded.Object()), "12700x5080");
  size = {26458, 5292};  // 1000 by 200 pixels, two of them a second
  EXPECT_EQ(embedded.Object().SetExtent(DVASPECT_CONTENT, &size), S_OK);
  embedded.AddBar();
  EXPECT_EQ(embedded.control.Call(L"TrackTop", {L"Bar"}), Value(600.0f));
  const Picture picture(1000, 200);
  const RECTL place{0, 0, 1000, 200};
  embedded.As<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, picture.Device(), &place,
                                   nullptr, nullptr, 0);
  EXPECT_EQ(picture.At(190, 60), GetSysColor(COLOR_APPWORKSPACE));
  EXPECT_NE(picture.At(300, 60), GetSysColor(COLOR_APPWORKSPACE));
  EXPECT_EQ(picture.At(410, 60), GetSysColor(COLOR_APPWORKSPACE));
}

TEST(OleObject, RefusesExtentsThatNoScreenHas) {
  const Embedded embedded;
  SIZEL negative{-1, 10}, huge{LONG_MAX, 10};
  EXPECT_EQ(embedded.Object().SetExtent(DVASPECT_CONTENT, &negative), E_INVALIDARG);
  EXPECT_EQ(ResultText(embedded.Object().SetExtent(DVASPECT_CONTENT, &huge)), "0x800A0006");
  EXPECT_EQ(embedded.Object().SetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
  EXPECT_EQ(SizeOf(embedded.Object()), "12700x4233");
}

TEST(OleObject, HasNoAspectButItsContent) {
  const Embedded embedded;
  SIZEL size = kTwoInches;
  EXPECT_EQ(embedded.Object().SetExtent(DVASPECT_ICON, &size), DV_E_DVASPECT);
  EXPECT_EQ(embedded.Object().GetExtent(DVASPECT_THUMBNAIL, &size), DV_E_DVASPECT);
  DWORD status = 1;
  EXPECT_EQ(embedded.Object().GetMiscStatus(DVASPECT_ICON, &status), DV_E_DVASPECT);
  EXPECT_EQ(status, 0U);
}

TEST(OleObject, AsksItsContainerForAnExtentWhileItIsShown) {
  Embedded embedded;
  embedded.Show();
  SIZEL size = kTwoInches;
  EXPECT_EQ(embedded.Object().SetExtent(DVASPECT_CONTENT, &size), S_OK);
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnPosRectChange 192x192"));
  EXPECT_EQ(embedded.Place(), "10,20 500x200");
  embedded.container.site->repositions = embedded.As<IOleInPlaceObject>();
  embedded.Object().SetExtent(DVASPECT_CONTENT, &size);
  EXPECT_EQ(embedded.Place(), "10,20 192x192");
}

TEST(OleObject, IsNotAskedWithoutEndByAContainerThatSetsTheExtentAgain) {
  Embedded embedded;
  embedded.Show();
  int asked = 0;
  embedded.container.book.reactions["OnPosRectChange 192x192"] = [&] {
    SIZEL again = kTwoInches;
    if (++asked < 10) embedded.Object().SetExtent(DVASPECT_CONTENT, &again);
  };
  SIZEL size = kTwoInches;
  embedded.Object().SetExtent(DVASPECT_CONTENT, &size);
  EXPECT_EQ(asked, 1);
}

TEST(OleObject, KeepsItsSite) {
  const Embedded embedded;
  IOleClientSite* site = nullptr;
  EXPECT_EQ(embedded.Object().GetClientSite(&site), S_OK);
  EXPECT_EQ(TakeOver(site).Get(), embedded.container.site.Get());
  EXPECT_EQ(embedded.Object().GetClientSite(nullptr), E_POINTER);
}

TEST(OleObject, TakesItsSiteBeforeOrAfterItBegan) {
  const Late control = NewControl();
  TestContainer container;
  EXPECT_EQ(Query<IPersistStreamInit>(control.Pointer())->InitNew(), S_OK);
  const auto object = Query<IOleObject>(control.Pointer());
  EXPECT_EQ(object->SetClientSite(container.site.Get()), S_OK);
  EXPECT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
  EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
}

TEST(OleObject, SaysHowItIsToBeTreated) {
  const Embedded embedded;
  DWORD status = 0;
  EXPECT_EQ(embedded.Object().GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
  EXPECT_EQ(status, OLEMISC_RECOMPOSEONRESIZE | OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                        OLEMISC_SETCLIENTSITEFIRST | OLEMISC_CANTLINKINSIDE);
}

TEST(OleObject, SaysWhatItIs) {
  const Embedded embedded;
  CLSID id{};
  EXPECT_EQ(embedded.Object().GetUserClassID(&id), S_OK);
  EXPECT_TRUE(id == __uuidof(::MURTimelineRender));
  LPOLESTR title = nullptr;
  EXPECT_EQ(embedded.Object().GetUserType(USERCLASSTYPE_FULL, &title), S_OK);
  EXPECT_EQ(ToUtf8(title), "MURTimeline control");
  CoTaskMemFree(title);
  EXPECT_EQ(embedded.Object().GetUserType(7, &title), E_INVALIDARG);
}

TEST(OleObject, ListsItsVerbs) {
  const Embedded embedded;
  EXPECT_THAT(VerbsOf(embedded.Object()), ElementsAre("0 Activate", "-1 Show", "-3 Hide",
                                                      "-4 Activate with tools", "-5 Activate in place"));
}

TEST(OleObject, HasNoWindowApartAndNoPropertyPages) {
  const Embedded embedded;
  EXPECT_EQ(embedded.Do(OLEIVERB_OPEN), E_NOTIMPL);
  EXPECT_EQ(embedded.Do(OLEIVERB_PROPERTIES), E_NOTIMPL);
  EXPECT_EQ(embedded.Do(OLEIVERB_DISCARDUNDOSTATE), S_OK);
  EXPECT_EQ(embedded.Window(), nullptr);
}

TEST(OleObject, TakesAnUnknownVerbForThePrimaryOne) {
  const Embedded embedded;
  EXPECT_EQ(embedded.Do(77), OLEOBJ_S_INVALIDVERB);
  EXPECT_NE(embedded.Window(), nullptr);
}

TEST(OleObject, CannotBeShownWithoutASite) {
  const Late control = NewControl();
  const TestContainer container;
  const auto object = Query<IOleObject>(control.Pointer());
  EXPECT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, container.Window(), nullptr), E_UNEXPECTED);
}

TEST(OleObject, TakesTheSiteThatComesWithTheVerb) {
  const Late control = NewControl();
  TestContainer container;
  const auto object = Query<IOleObject>(control.Pointer());
  EXPECT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, container.site.Get(), 0, nullptr, nullptr), S_OK);
  EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
}

TEST(OleObject, TellsThatItCloses) {
  Embedded embedded;
  const Ref<AdviseSink> sink(new AdviseSink(embedded.container.book));
  DWORD cookie = 0;
  EXPECT_EQ(embedded.Object().Advise(sink.Get(), &cookie), S_OK);
  embedded.Show();
  EXPECT_EQ(embedded.Close(), S_OK);
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnInPlaceDeactivate", "OnClose"));
  EXPECT_EQ(embedded.Object().Unadvise(cookie), S_OK);
  embedded.Close();
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
}

TEST(OleObject, HasNothingToSaveWhenItCloses) {
  Embedded embedded;
  embedded.AddBar();
  EXPECT_EQ(embedded.Object().Close(OLECLOSE_SAVEIFDIRTY), S_OK);
  EXPECT_EQ(embedded.Object().Close(OLECLOSE_PROMPTSAVE), S_OK);
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
  EXPECT_EQ(embedded.Object().Close(9), E_INVALIDARG);
}

TEST(OleObject, ListsItsAdvisers) {
  Embedded embedded;
  IEnumSTATDATA* all = nullptr;
  EXPECT_EQ(embedded.Object().EnumAdvise(&all), S_OK);
  EXPECT_EQ(all, nullptr);
  EXPECT_EQ(embedded.Object().Unadvise(1), OLE_E_NOCONNECTION);
}

}  // namespace
}  // namespace mur::test
