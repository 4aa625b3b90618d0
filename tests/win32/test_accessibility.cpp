#include <gmock/gmock.h>
#include <oleacc.h>

#include "tests/support/control_log.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

VARIANT Child(LONG IdA) {
  VARIANT child{};
  child.vt = VT_I4;
  child.lVal = IdA;
  return child;
}

class AccessibleWindow : public testing::Test {
 protected:
  static void SetUpTestSuite() { OleInitialize(nullptr); }
  static void TearDownTestSuite() { OleUninitialize(); }

  AccessibleWindow() {
    shown.Bar(u"A", 100)->SetTag(u"Titles");
    shown.Bar(u"B", 2000);
    PumpMessages();
    const LRESULT given = shown.Send(WM_GETOBJECT, 0, OBJID_CLIENT);
    ObjectFromLresult(given, __uuidof(IAccessible), 0, reinterpret_cast<void**>(&object));
  }
  ~AccessibleWindow() override {
    if (object) object->Release();
  }

  std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*GetA)(VARIANT, BSTR*), LONG IdA) const {
    BSTR text = nullptr;
    if ((object->*GetA)(Child(IdA), &text) != S_OK) return "-";
    const std::string result =
        ToUtf8(StringView(reinterpret_cast<const char16_t*>(text), SysStringLen(text)));
    SysFreeString(text);
    return result;
  }
  LONG State(LONG IdA) const {
    VARIANT state{};
    object->get_accState(Child(IdA), &state);
    return state.lVal;
  }
  LONG Step(LONG DirectionA, LONG FromA) const {
    VARIANT to{};
    return object->accNavigate(DirectionA, Child(FromA), &to) == S_OK ? to.lVal : 0;
  }

  ShownTimeline shown;
  IAccessible* object = nullptr;
};

TEST_F(AccessibleWindow, IsAListOfBars) {
  ASSERT_NE(object, nullptr);
  LONG count = 0;
  object->get_accChildCount(&count);
  EXPECT_EQ(count, 2);
  VARIANT role{};
  object->get_accRole(Child(CHILDID_SELF), &role);
  EXPECT_EQ(role.lVal, ROLE_SYSTEM_LIST);
  object->get_accRole(Child(1), &role);
  EXPECT_EQ(role.lVal, ROLE_SYSTEM_LISTITEM);
  EXPECT_EQ(object->get_accRole(Child(3), &role), E_INVALIDARG);
}

TEST_F(AccessibleWindow, NamesTheBarsAndTheirTimes) {
  EXPECT_EQ(Text(&IAccessible::get_accName, CHILDID_SELF), "Time line");
  EXPECT_EQ(Text(&IAccessible::get_accName, 1), "Titles");
  EXPECT_EQ(Text(&IAccessible::get_accName, 2), "B");
  EXPECT_EQ(Text(&IAccessible::get_accValue, 1), "12:01:40 to 12:03:20");
  EXPECT_EQ(Text(&IAccessible::get_accDescription, 1), "12:01:40 to 12:03:20");
  EXPECT_EQ(Text(&IAccessible::get_accDefaultAction, 1), "Click");
  EXPECT_EQ(Text(&IAccessible::get_accHelp, 1), "-");
}

TEST_F(AccessibleWindow, TellsHowBarsAre) {
  EXPECT_EQ(State(1) & STATE_SYSTEM_OFFSCREEN, 0);
  EXPECT_NE(State(2) & STATE_SYSTEM_OFFSCREEN, 0);
  EXPECT_EQ(State(1) & (STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED), 0);
  shown.control->SetAutoSelectMode(etlcltLeftClick);
  shown.Click(120, 10);
  EXPECT_EQ(State(1) & (STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED),
            STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED);
  VARIANT chosen{};
  EXPECT_EQ(object->get_accFocus(&chosen), S_OK);
  EXPECT_EQ(chosen.lVal, 1);
  EXPECT_EQ(object->get_accSelection(&chosen), S_OK);
  EXPECT_EQ(chosen.lVal, 1);
  shown.control->SetTLObject_Visible(Variant(u"A"), false);
  EXPECT_NE(State(1) & STATE_SYSTEM_INVISIBLE, 0);
}

TEST_F(AccessibleWindow, TellsWhereBarsAre) {
  LONG left = 0, top = 0, width = 0, height = 0;
  EXPECT_EQ(object->accLocation(&left, &top, &width, &height, Child(1)), S_OK);
  POINT corner{100, 0};
  ClientToScreen(shown.CanvasWindow(), &corner);
  EXPECT_EQ(left, corner.x);
  EXPECT_EQ(top, corner.y);
  EXPECT_EQ(width, 100);
  EXPECT_EQ(height, 40);
  VARIANT hit{};
  EXPECT_EQ(object->accHitTest(corner.x + 5, corner.y + 5, &hit), S_OK);
  EXPECT_EQ(hit.lVal, 1);
  EXPECT_EQ(object->accHitTest(corner.x + 700, corner.y + 5, &hit), S_OK);
  EXPECT_EQ(hit.lVal, CHILDID_SELF);
  EXPECT_EQ(object->accHitTest(corner.x - 5000, corner.y, &hit), S_FALSE);
}

TEST_F(AccessibleWindow, LeadsFromBarToBar) {
  EXPECT_EQ(Step(NAVDIR_FIRSTCHILD, CHILDID_SELF), 1);
  EXPECT_EQ(Step(NAVDIR_LASTCHILD, CHILDID_SELF), 2);
  EXPECT_EQ(Step(NAVDIR_NEXT, 1), 2);
  EXPECT_EQ(Step(NAVDIR_NEXT, 2), 0);
  EXPECT_EQ(Step(NAVDIR_PREVIOUS, 2), 1);
  EXPECT_EQ(Step(NAVDIR_PREVIOUS, 1), 0);
  EXPECT_EQ(Step(NAVDIR_DOWN, 1), 2);
  EXPECT_EQ(Step(NAVDIR_RIGHT, 1), 0);
}

TEST_F(AccessibleWindow, ClicksAndFocuses) {
  mur::test::ControlLog log(*shown.control, *shown.timeline, kNoon);
  EXPECT_EQ(object->accDoDefaultAction(Child(1)), S_OK);
  EXPECT_THAT(log.Take(), testing::EndsWith("TLObjectClick(A)"));
  EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS, Child(2)), S_OK);
  EXPECT_EQ(ToUtf8(shown.Canvas().FocusedItem()->Key()), "B");
  EXPECT_EQ(object->accSelect(SELFLAG_TAKESELECTION, Child(2)), E_INVALIDARG);
}

TEST_F(AccessibleWindow, HasTheWindowAsItsParent) {
  IDispatch* parent = nullptr;
  EXPECT_EQ(object->get_accParent(&parent), S_OK);
  if (parent) parent->Release();
  IDispatch* child = nullptr;
  EXPECT_EQ(object->get_accChild(Child(1), &child), S_FALSE);
}

TEST_F(AccessibleWindow, IsDisconnectedAfterTheWindow) {
  shown.window->Destroy();
  LONG count = 0;
  EXPECT_EQ(object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
  shown.window->Detach();
  EXPECT_EQ(object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessibleWindow, AHandlerMayEndEverything) {
  const auto watching = shown.control->TLObjectClick.Connect([&](auto&&...) {
    shown.control = {};
    shown.window.reset();
  });
  EXPECT_EQ(object->accDoDefaultAction(Child(1)), S_OK);
  shown.window = std::make_unique<TimelineWindow>(GetModuleHandleW(nullptr));
}

std::vector<std::pair<DWORD, LONG>> heard;

void CALLBACK Hear(HWINEVENTHOOK, DWORD EventA, HWND, LONG ObjectA, LONG ChildA, DWORD, DWORD) {
  if (ObjectA == OBJID_CLIENT && ChildA != CHILDID_SELF) heard.emplace_back(EventA, ChildA);
}

TEST_F(AccessibleWindow, TellsOfFocusAndSelection) {
  const HWINEVENTHOOK hook =
      SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_SELECTION, GetModuleHandleW(nullptr), Hear,
                      GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_INCONTEXT);
  ASSERT_NE(hook, nullptr);
  heard.clear();
  shown.window->TakeFocus();
  shown.Key(VK_RIGHT);
  shown.control->SetAutoSelectMode(etlcltLeftClick);
  shown.Key(VK_SPACE);
  UnhookWinEvent(hook);
  EXPECT_THAT(heard, testing::ElementsAre(testing::Pair(EVENT_OBJECT_FOCUS, 1),
                                          testing::Pair(EVENT_OBJECT_SELECTION, 1)));
}

}  // namespace
}  // namespace mur::win32::test
