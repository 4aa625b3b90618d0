#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>

#include "tests/dialogs/dialog_fixture.h"

namespace mur::test {
namespace {

TEST(ScriptedWindow, TakesNoInputWhileItIsNotShown) {
  ScriptedForms forms;
  ScriptedEditTimesForm times(forms);
  ScriptedDateTimeForm moment(forms);
  int heard = 0;
  const Connection connections[] = {times.Window().SystemClick.Connect([&](int) { ++heard; }),
                                    times.Window().Unloading.Connect([&] { ++heard; }),
                                    times.ChangeClick.Connect([&](int) { ++heard; }),
                                    times.DurationChange.Connect([&] { ++heard; }),
                                    moment.DateChange.Connect([&] { ++heard; }),
                                    moment.TimeChange.Connect([&] { ++heard; })};
  times.Window().Press(1);
  times.Window().PressEnter();
  times.Window().PressCloseBox();
  times.Window().Unload();
  times.PressChange(1);
  times.PickDuration(Date());
  moment.PickDate(Date());
  moment.PickTime(Date());
  EXPECT_EQ(heard, 0);
}

TEST(ScriptedWindow, TakesNoPressOfAHiddenButtonOrOfAKeyWithoutAButton) {
  ScriptedForms forms;
  ScriptedWindow window(forms, [&] {
    window.SetSystemVisible(3, false);
    window.Press(3);
    window.PressEnter();
    window.PressEscape();
    window.Press(2);
  });
  std::vector<int> pressed;
  const auto connection = window.SystemClick.Connect([&](int index) { pressed.push_back(index); });
  window.ShowModal();
  EXPECT_EQ(pressed, std::vector<int>{2});
  EXPECT_FALSE(window.IsSystemVisible(3));
}

TEST(ScriptedWindow, IsClosedByItsCloseBoxAtTheEndOfItsScript) {
  ScriptedForms forms;
  ScriptedWindow window(forms, [] {});
  std::string log;
  const auto asked = window.QueryUnload.Connect([&](UnloadRequest request, bool&) {
    log += request == UnloadRequest::ByUser ? "asked by the user; " : "asked by the program; ";
  });
  const auto told = window.Unloading.Connect([&] { log += "told"; });
  window.ShowModal();
  EXPECT_EQ(log, "asked by the user; told");
  EXPECT_FALSE(window.IsShown());
}

TEST(ScriptedWindow, CanBeClosedAfterAListenerThrew) {
  ScriptedForms forms;
  bool fails = true;
  ScriptedWindow window(forms, [&] {
    EXPECT_ANY_THROW(window.PressCloseBox());
    fails = false;
    window.PressCloseBox();
    EXPECT_FALSE(window.IsShown());
  });
  const auto connection = window.QueryUnload.Connect([&](UnloadRequest, bool&) {
    if (fails) throw 42;
  });
  window.ShowModal();
}

TEST(ScriptedWindow, HasThreeButtons) {
  ScriptedForms forms;
  ScriptedWindow window(forms, [] {});
  EXPECT_THROW(window.SetSystemCaption(0, u"x"), AutomationError);
  EXPECT_THROW(window.SetSystemCaption(4, u"x"), AutomationError);
}

TEST(ScriptedForms, NeedNoScript) {
  ScriptedForms forms;
  forms.MakeEditTimesForm()->Window().ShowModal();
  forms.MakeDateTimeForm()->Window().ShowModal();
  EXPECT_TRUE(forms.Messages().empty());
}

}  // namespace
}  // namespace mur::test
