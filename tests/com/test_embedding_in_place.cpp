#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"
#include "tests/com/listener.h"

namespace mur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(InPlace, TellsItsContainerEveryStepOfItsActivation) {
  Embedded embedded;
  EXPECT_EQ(embedded.Do(OLEIVERB_INPLACEACTIVATE), S_OK);
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("CanInPlaceActivate", "OnInPlaceActivate",
                                                          "GetWindow", "GetWindowContext", "ShowObject"));
  EXPECT_EQ(GetParent(embedded.Window()), embedded.container.Window());
  EXPECT_EQ(embedded.Place(), "10,20 500x200");
}

TEST(InPlace, BecomesTheOneThatTheUserWorksWith) {
  Embedded embedded;
  embedded.Show();
  EXPECT_EQ(embedded.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_THAT(embedded.container.book.Take(),
              ElementsAre("GetWindow", "GetWindowContext", "ShowObject", "OnUIActivate", "OnFocus",
                          "frame has an active object", "frame gives no border",
                          "document has an active object", "document gives no border"));
  EXPECT_TRUE(embedded.container.site->frame->active == embedded.As<IOleInPlaceActiveObject>());
  EXPECT_EQ(GetFocus(), embedded.Canvas());
}

TEST(InPlace, LeavesStepByStep) {
  Embedded embedded;
  embedded.Do(OLEIVERB_UIACTIVATE);
  embedded.container.book.Take();
  const auto object = embedded.As<IOleInPlaceObject>();
  EXPECT_EQ(object->UIDeactivate(), S_OK);
  EXPECT_THAT(embedded.container.book.Take(),
              ElementsAre("frame has none", "document has none", "OnUIDeactivate"));
  EXPECT_NE(embedded.Window(), nullptr);
  EXPECT_EQ(object->InPlaceDeactivate(), S_OK);
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnBlur", "OnInPlaceDeactivate"));
  EXPECT_EQ(embedded.Window(), nullptr);
  EXPECT_EQ(object->UIDeactivate(), S_OK);
  EXPECT_EQ(object->InPlaceDeactivate(), S_OK);
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
}

TEST(InPlace, NeedsNeitherFrameNorDocument) {
  Embedded embedded;
  embedded.container.site->frame = {};
  embedded.container.site->document = {};
  EXPECT_EQ(embedded.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_EQ(embedded.Close(), S_OK);
  embedded.container.site->frame = Ref(new FrameWindow("frame", nullptr, embedded.container.book));
  embedded.container.site->document = embedded.container.site->frame;
}

TEST(InPlace, IsShownByWhatCameWithTheVerbWhereTheSiteDoesNotSay) {
  Embedded embedded;
  embedded.container.book.answers = {{"GetWindow", E_NOTIMPL}, {"GetWindowContext", E_NOTIMPL}};
  const RECT place{1, 2, 301, 102};
  EXPECT_EQ(embedded.Object().DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, embedded.container.Window(), &place),
            S_OK);
  EXPECT_EQ(embedded.Place(), "1,2 300x100");
}

TEST(InPlace, TakesItsOwnSizeWhereNobodySays) {
  Embedded embedded;
  embedded.container.book.answers = {{"GetWindowContext", E_NOTIMPL}};
  EXPECT_EQ(embedded.Object().DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
  EXPECT_EQ(embedded.Place(), "0,0 480x160");
}

TEST(InPlace, IsUndoneWhereThereIsNoWindowToShowItIn) {
  Embedded embedded;
  embedded.container.site->window = nullptr;
  EXPECT_EQ(embedded.Object().DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), E_FAIL);
  EXPECT_THAT(embedded.container.book.Take(),
              ElementsAre("CanInPlaceActivate", "OnInPlaceActivate", "GetWindow", "GetWindowContext",
                          "OnInPlaceDeactivate"));
}

TEST(InPlace, MayBeRefused) {
  Embedded embedded;
  embedded.container.book.answers = {{"CanInPlaceActivate", S_FALSE}};
  EXPECT_EQ(embedded.Do(OLEIVERB_SHOW), E_FAIL);
  embedded.container.book.answers = {{"OnInPlaceActivate", E_ACCESSDENIED}};
  EXPECT_EQ(embedded.Do(OLEIVERB_SHOW), E_ACCESSDENIED);
  embedded.container.site->isPlain = true;
  EXPECT_EQ(embedded.Do(OLEIVERB_SHOW), E_UNEXPECTED);
  EXPECT_EQ(embedded.Window(), nullptr);
}

TEST(InPlace, StaysShownWhenItMayNotBeWorkedWith) {
  Embedded embedded;
  embedded.container.book.answers = {{"OnUIActivate", E_FAIL}};
  EXPECT_EQ(embedded.Do(OLEIVERB_UIACTIVATE), E_FAIL);
  EXPECT_NE(embedded.Window(), nullptr);
  embedded.container.book.answers.clear();
  EXPECT_EQ(embedded.Do(OLEIVERB_UIACTIVATE), S_OK);
}

TEST(InPlace, TakesItsPlaceFromItsContainer) {
  Embedded embedded;
  embedded.Show();
  const RECT place{30, 40, 330, 240}, clip{0, 0, 900, 600};
  EXPECT_EQ(embedded.As<IOleInPlaceObject>()->SetObjectRects(&place, &clip), S_OK);
  EXPECT_EQ(embedded.Place(), "30,40 300x200");
  EXPECT_EQ(embedded.As<IOleInPlaceObject>()->SetObjectRects(nullptr, &clip), E_POINTER);
}

TEST(InPlace, ShowsNoMoreThanItsContainerClipsItTo) {
  Embedded embedded;
  embedded.Show();
  const auto shownTo = [&](const RECT* clip) {
    const RECT place{10, 20, 510, 220};
    embedded.As<IOleInPlaceObject>()->SetObjectRects(&place, clip);
    RECT box{};
    const int kind = GetWindowRgnBox(embedded.Window(), &box);
    return kind == ERROR ? std::string("all")
                         : std::to_string(box.left) + "," + std::to_string(box.top) + " " +
                               std::to_string(box.right) + "," + std::to_string(box.bottom);
  };
  const RECT corner{0, 0, 110, 70}, everything{0, 0, 900, 900}, empty{};
  EXPECT_EQ(shownTo(&everything), "all");
  EXPECT_EQ(shownTo(&corner), "0,0 100,50");
  EXPECT_EQ(shownTo(&empty), "all");
  EXPECT_EQ(shownTo(nullptr), "all");
}

TEST(InPlace, IsLaidOutForAPlaceWithoutAWindowToo) {
  const Embedded embedded;
  const RECT place{0, 0, 700, 300};
  EXPECT_EQ(embedded.As<IOleInPlaceObject>()->SetObjectRects(&place, nullptr), S_OK);
  EXPECT_EQ(embedded.Window(), nullptr);
}

TEST(InPlace, HidesAndShowsAgain) {
  Embedded embedded;
  embedded.Do(OLEIVERB_UIACTIVATE);
  EXPECT_EQ(embedded.Do(OLEIVERB_HIDE), S_OK);
  EXPECT_FALSE(IsWindowVisible(embedded.Window()));
  EXPECT_EQ(embedded.Do(OLEIVERB_SHOW), S_OK);
  EXPECT_TRUE(IsWindowVisible(embedded.Window()));
}

TEST(InPlace, IsActivatedByTheKeyboardThatComesToIt) {
  Embedded embedded;
  embedded.Show();
  SetFocus(embedded.Window());
  EXPECT_THAT(embedded.container.book.Take(),
              ElementsAre("OnUIActivate", "frame has an active object", "frame gives no border",
                          "document has an active object", "document gives no border", "OnFocus"));
  SetFocus(embedded.container.Window());
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnBlur"));
}

TEST(InPlace, IsActivatedByAPressBeforeAnybodyHearsOfThat) {
  Embedded embedded;
  embedded.AddBar();
  embedded.Show();
  SetFocus(embedded.container.Window());
  std::vector<std::string> order;
  embedded.container.book.reactions["OnUIActivate"] = [&] { order.push_back("OnUIActivate"); };
  const Listening listening(embedded.control, [&](const std::string& event, auto&) {
    order.push_back(event);
    return S_OK;
  });
  embedded.Click(150, 20);
  EXPECT_THAT(order, ElementsAre("OnUIActivate", "TLObjectMouseDown", "TLObjectMouseUp", "TLObjectClick"));
}

TEST(InPlace, HandsOverThePressThatActivatedIt) {
  Embedded embedded;
  embedded.AddBar();
  const Listening listening(embedded.control);
  MSG press{};
  press.hwnd = embedded.container.Window();
  press.message = WM_LBUTTONDOWN;
  press.wParam = MK_LBUTTON;
  press.lParam = MAKELPARAM(10 + 150, 20 + 40 + 20);
  embedded.Object().DoVerb(OLEIVERB_UIACTIVATE, &press, nullptr, 0, nullptr, nullptr);
  PumpMessages();
  EXPECT_THAT(listening->heard, testing::Contains(testing::StartsWith("TLObjectMouseDown")));
}

TEST(InPlace, MovesToAnotherWindowOfItsContainer) {
  Embedded embedded;
  embedded.Show();
  const HWND before = embedded.Window();
  const TestContainer other;
  embedded.container.site->window = other.Window();
  EXPECT_EQ(embedded.Do(OLEIVERB_SHOW), S_OK);
  EXPECT_EQ(embedded.Window(), before);
  EXPECT_EQ(GetParent(before), other.Window());
  embedded.Close();
}

TEST(InPlace, MovesToAnotherContainer) {
  Embedded embedded;
  TestContainer other;
  embedded.Do(OLEIVERB_UIACTIVATE);
  embedded.container.book.Take();
  EXPECT_EQ(embedded.Object().SetClientSite(other.site.Get()), S_OK);
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("frame has none", "document has none",
                                                          "OnUIDeactivate", "OnBlur", "OnInPlaceDeactivate"));
  EXPECT_EQ(embedded.Do(OLEIVERB_SHOW), S_OK);
  EXPECT_EQ(GetParent(embedded.Window()), other.Window());
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
  EXPECT_EQ(embedded.Object().SetClientSite(nullptr), S_OK);
  EXPECT_EQ(other.book.Take().back(), "OnInPlaceDeactivate");
}

TEST(InPlace, KeepsItsStateWhenTheContainersWindowGoesFirst) {
  Embedded embedded;
  embedded.Show();
  embedded.container.Destroy();
  EXPECT_EQ(embedded.Window(), nullptr);
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
  TestContainer other;
  embedded.container.site->window = other.Window();
  EXPECT_EQ(embedded.Do(OLEIVERB_SHOW), S_OK);
  EXPECT_EQ(GetParent(embedded.Window()), other.Window());
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("GetWindow", "GetWindowContext", "ShowObject"));
  embedded.Close();
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnInPlaceDeactivate"));
}

TEST(InPlace, HasNoUndoAndNoHelpOfItsOwn) {
  const Embedded embedded;
  EXPECT_EQ(embedded.As<IOleInPlaceObject>()->ReactivateAndUndo(), INPLACE_E_NOTUNDOABLE);
  EXPECT_EQ(embedded.As<IOleWindow>()->ContextSensitiveHelp(TRUE), E_NOTIMPL);
}

}  // namespace
}  // namespace mur::test
