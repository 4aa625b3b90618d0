#include <gmock/gmock.h>

#include "tests/support/control_log.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

class WindowKeys : public testing::Test {
 protected:
  WindowKeys() {
    shown.Bar(u"A", 100);
    shown.Bar(u"B", 120);
    SetForegroundWindow(shown.host.Handle());
    shown.window->TakeFocus();
    PumpMessages();
  }
  std::string Ringed() const {
    const auto item = shown.Canvas().FocusedItem();
    return item ? ToUtf8(item->Key()) : "-";
  }
  bool Translate(WPARAM KeyA) const {
    return shown.window->TranslateKey({shown.CanvasWindow(), WM_KEYDOWN, KeyA, 0, 0, {}});
  }

  ShownTimeline shown;
};

TEST_F(WindowKeys, WalkFromBarToBar) {
  ASSERT_TRUE(shown.window->HasFocus());
  shown.Key(VK_RIGHT);
  EXPECT_EQ(Ringed(), "A");
  shown.Key(VK_DOWN);
  EXPECT_EQ(Ringed(), "B");
}

TEST_F(WindowKeys, ClickTheBar) {
  shown.Key(VK_RIGHT);
  mur::test::ControlLog log(*shown.control, *shown.timeline, kNoon);
  shown.Key(VK_SPACE);
  EXPECT_EQ(log.Take(),
            "TLObjectMouseDown(A, 1, 0, 50, 20); TLObjectMouseUp(A, 1, 0, 50, 20); TLObjectClick(A)");
}

TEST_F(WindowKeys, TheContainersLoopMayHandThemOn) {
  EXPECT_TRUE(Translate(VK_RIGHT));
  EXPECT_EQ(Ringed(), "A");
  EXPECT_TRUE(Translate(VK_RETURN));
  EXPECT_FALSE(Translate(VK_TAB));
  EXPECT_FALSE(Translate(VK_ESCAPE));  // nothing is dragged
  EXPECT_FALSE(shown.window->TranslateKey({shown.CanvasWindow(), WM_KEYUP, VK_RIGHT, 0, 0, {}}));
}

TEST_F(WindowKeys, AreTheContainersWhileSomethingElseHasTheFocus) {
  SetFocus(shown.host.Handle());
  EXPECT_FALSE(shown.window->HasFocus());
  EXPECT_FALSE(Translate(VK_RIGHT));
}

TEST_F(WindowKeys, AreTheContainersAtDesignTime) {
  Ambience design;
  design.userMode = false;
  shown.window->SetAmbience(design);
  EXPECT_FALSE(Translate(VK_RIGHT));
}

TEST_F(WindowKeys, EscapeLetsGoOfTheMouse) {
  shown.Press(150, 10);
  shown.MoveTo(180, 10);
  shown.Key(VK_ESCAPE);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_NEAR(shown.timeline->Item(u"A")->WorldTimeT0().Days(), At(100).Days(), 1e-9);
}

TEST_F(WindowKeys, TheRingIsThereWhileTheKeyboardIs) {
  shown.Key(VK_RIGHT);
  SetFocus(shown.host.Handle());
  EXPECT_EQ(Ringed(), "-");
  shown.window->TakeFocus();
  EXPECT_EQ(Ringed(), "A");
}

TEST_F(WindowKeys, TheFocusOfTheFrameIsThatOfTheCanvas) {
  SetFocus(shown.host.Handle());
  SetFocus(shown.window->Handle());
  EXPECT_EQ(GetFocus(), shown.CanvasWindow());
}

TEST_F(WindowKeys, TheContainerHearsWhenTheFocusComesAndGoes) {
  std::string heard;
  shown.window->Events().FocusTaken = [&] { heard += "taken;"; };
  shown.window->Events().FocusLost = [&] { heard += "lost;"; };
  SetFocus(shown.host.Handle());
  SetFocus(shown.window->Handle());
  EXPECT_EQ(heard, "lost;taken;");
}

TEST_F(WindowKeys, ADialogLeavesThemTheArrows) {
  EXPECT_NE(shown.Send(WM_GETDLGCODE, 0, 0) & DLGC_WANTARROWS, 0);
}

TEST_F(WindowKeys, ADialogKeepsEnterAndEscUnlessTheyMeanSomething) {
  const auto wants = [this](WPARAM key) {
    MSG message{shown.CanvasWindow(), WM_KEYDOWN, key, 0, 0, {}};
    return (shown.Send(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&message)) & DLGC_WANTMESSAGE) != 0;
  };
  EXPECT_FALSE(wants(VK_RETURN));
  EXPECT_FALSE(wants(VK_ESCAPE));
  shown.Key(VK_RIGHT);
  EXPECT_TRUE(wants(VK_RETURN));
  shown.Press(150, 10);
  EXPECT_TRUE(wants(VK_ESCAPE));
  shown.Release(150, 10);
}

TEST_F(WindowKeys, TurnThePagesOfRowsThatDoNotFit) {
  EXPECT_FALSE(Translate(VK_NEXT));
  for (const char16_t key : {u'c', u'd', u'e', u'f', u'g'}) shown.Bar(StringView(&key, 1), 200);
  PumpMessages();
  EXPECT_TRUE(Translate(VK_NEXT));
  EXPECT_EQ(shown.Canvas().ScrollTop(), 7 * 46 - 6 - 200);
  EXPECT_TRUE(Translate(VK_PRIOR));
  EXPECT_EQ(shown.Canvas().ScrollTop(), 0);
}

}  // namespace
}  // namespace mur::win32::test
