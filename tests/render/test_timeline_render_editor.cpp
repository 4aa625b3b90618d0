#include <gtest/gtest.h>

#include <murtimeline/dialogs/edit_times_dialog.h>
#include <murtimeline/dialogs/scripted_forms.h>

#include "tests/support/print.h"
#include "tests/support/render_fixture.h"
#include "tests/support/value_text.h"

namespace mur::test {
namespace {

constexpr int kOkButton = 2;

struct EditableControl : AttachedControl {
  explicit EditableControl(const Companions& CompanionsA = {}) : AttachedControl(CompanionsA) {
    host.SetForms(&forms);
    control->SetDuration(3600);
  }

  // Calls ShowEditor for a user who does this.
  void ShowEditor(const ScriptedForms::EditTimesScript& ScriptA) {
    forms.SetEditTimesScript(ScriptA);
    control->ShowEditor();
  }

  ScriptedForms forms;
};

void Accept(ScriptedEditTimesForm& FormA) {
  FormA.Window().Press(kOkButton);
}

TEST(ShowEditor, ShowsTheTimesOfTheControl) {
  EditableControl c;
  bool shown = false;
  c.ShowEditor([&](ScriptedEditTimesForm& form) {
    shown = true;
    EXPECT_EQ(form.Window().Title(), u"Edit Times");
    EXPECT_EQ(form.Window().Commentary(),
              u"Use this window to change the displayed duration of the Timeline");
    EXPECT_EQ(form.StartText(), u"Saturday, January 1, 2000  12:00:00 PM");
    EXPECT_EQ(form.EndText(), u"Saturday, January 1, 2000  1:00:00 PM");
    EXPECT_EQ(form.DurationValue(), Date::Unchecked(1.0 / 24));
  });
  EXPECT_TRUE(shown);
}

TEST(ShowEditor, ChangesNothingWhenItIsCancelled) {
  EditableControl c;
  Counter repaints(c->CursorTimeChange);
  c.ShowEditor([](ScriptedEditTimesForm& form) {
    form.PickDuration(Date::Unchecked(0.25));
    form.Window().PressEscape();
  });
  EXPECT_EQ(c->Duration(), 3600);
  EXPECT_EQ(c->WorldTimeT0(), kNoon);
  EXPECT_EQ(repaints.Take(), 0);
}

TEST(ShowEditor, WritesStartAndThenLengthEachWithItsRepaintEvenUnchanged) {
  const RecordingCompanions companions;
  EditableControl c(companions.All());
  Counter repaints(c->CursorTimeChange);
  auto& log = const_cast<CallLog&>(companions.log);
  c.ShowEditor([&](ScriptedEditTimesForm& form) {
    log.Take();
    Accept(form);
  });
  const std::string calls = log.Take();
  const auto start = calls.find("Scroller.WorldTimeT0"), length = calls.find("Scroller.Duration");
  EXPECT_NE(start, std::string::npos) << calls;
  EXPECT_NE(length, std::string::npos) << calls;
  EXPECT_LT(start, length);
  EXPECT_EQ(repaints.Take(), 2);
  EXPECT_EQ(c->Duration(), 3600);
  EXPECT_EQ(c->WorldTimeT0(), kNoon);
}

TEST(ShowEditor, TakesAnEditedLengthAndStart) {
  EditableControl c;
  c.forms.SetDateTimeScript([](ScriptedDateTimeForm& form) {
    form.PickTime(DateOf(2000, 1, 1, 8));
    form.Window().Press(kOkButton);
  });
  c.ShowEditor([](ScriptedEditTimesForm& form) {
    form.PressChange(1);
    form.PickDuration(Date::Unchecked(0.25));
    Accept(form);
  });
  EXPECT_EQ(c->WorldTimeT0(), DateOf(2000, 1, 1, 8));
  EXPECT_EQ(c->Duration(), 21600);
}

TEST(ShowEditor, StartsAfreshEachTime) {
  EditableControl c;
  c.ShowEditor(Accept);
  Counter repaints(c->CursorTimeChange);
  c.ShowEditor([](ScriptedEditTimesForm& form) { form.Window().PressCloseBox(); });
  EXPECT_EQ(repaints.Take(), 0);
}

TEST(ShowEditor, DoesNothingOnAHostWithoutWindows) {
  EditableControl c;
  c.host.SetForms(nullptr);
  Counter repaints(c->CursorTimeChange);
  c.ShowEditor(Accept);
  EXPECT_EQ(repaints.Take(), 0);
}

TEST(ShowEditor, BringsTheOpenEditorToTheFrontWhoeverOpenedIt) {
  EditableControl c;
  EditableControl other;
  std::vector<std::string> calls;
  c.ShowEditor([&](ScriptedEditTimesForm& form) {
    const auto note = [&](std::string_view call, std::string_view) { calls.emplace_back(call); };
    c.forms.SetObserver(note);
    other.forms.SetObserver(note);
    c->ShowEditor();
    other->ShowEditor();
    EXPECT_EQ(calls, (std::vector<std::string>{"BringToFront", "BringToFront"}));
    c.forms.SetObserver(nullptr);
    Accept(form);
  });
  calls.clear();
  other->ShowEditor();
  EXPECT_FALSE(calls.empty());
}

TEST(ShowEditor, IsIgnoredWhileTheEditorsTimesAreWritten) {
  EditableControl c;
  int shown = 0;
  const auto connection = c->CursorTimeChange.Connect([&](Date) { c->ShowEditor(); });
  c.ShowEditor([&](ScriptedEditTimesForm& form) {
    ++shown;
    Accept(form);
  });
  EXPECT_EQ(shown, 1);
}

TEST(ShowEditor, StartsAfreshAfterAnyCallOfItsFormsFailed) {
  for (const char* failing : {"MakeEditTimesForm", "Title", "SetTitle", "SetCommentary", "SetStartText",
                              "SetEndText", "SetDurationValue", "ShowModal", "SystemCaption", "Unload"}) {
    EditableControl c;
    c.forms.SetObserver([&](std::string_view call, std::string_view) {
      if (call == failing) throw 42;
    });
    EXPECT_NO_THROW(c.ShowEditor(Accept)) << failing;
    c.forms.SetObserver(nullptr);
    int shown = 0;
    c.ShowEditor([&](ScriptedEditTimesForm&) { ++shown; });
    EXPECT_EQ(shown, 1) << failing;
  }
}

TEST(ShowEditor, StartsAfreshAfterAListenerThrewWhileTheTimesWereWritten) {
  EditableControl c;
  auto connection = c->CursorTimeChange.Connect([](Date) { throw 42; });
  c.ShowEditor([](ScriptedEditTimesForm& form) {
    form.PickDuration(Date::Unchecked(0.25));
    Accept(form);
  });
  EXPECT_EQ(c->Duration(), 21600);
  connection.Disconnect();
  int shown = 0;
  c.ShowEditor([&](ScriptedEditTimesForm&) { ++shown; });
  EXPECT_EQ(shown, 1);
}

TEST(ShowEditor, EndsInAnErrorThatIsSwallowedWhenItsFormsOpenItAgain) {
  EditableControl c;
  c.forms.SetObserver([&](std::string_view call, std::string_view) {
    if (call == "MakeEditTimesForm") c->ShowEditor();
  });
  EXPECT_NO_THROW(c->ShowEditor());
}

TEST(ShowEditor, GoesOnWhenTheTimeLineIsClearedOrReplacedMeanwhile) {
  EditableControl c;
  c.Add(murtlotGroup, u"G", true);
  c.ShowEditor([&](ScriptedEditTimesForm& form) {
    c.timeline->Clear();
    c->SetTimeline(nullptr);
    form.PickDuration(Date::Unchecked(0.25));
    Accept(form);
  });
  EXPECT_EQ(c->Duration(), 21600);
}

TEST(ShowEditor, GoesOnWhenTheControlIsLetGoMeanwhile) {
  EditableControl c;
  bool accepted = false;
  c.forms.SetEditTimesScript([&](ScriptedEditTimesForm& form) {
    c.control = nullptr;
    Accept(form);
    accepted = true;
  });
  c->ShowEditor();
  EXPECT_TRUE(accepted);
}

TEST(ShowEditor, ChangesNothingWhenItsWindowVanishes) {
  EditableControl c;
  Counter repaints(c->CursorTimeChange);
  c.ShowEditor([](ScriptedEditTimesForm& form) { form.Window().Vanish(); });
  EXPECT_EQ(repaints.Take(), 0);
}

TEST(ShowEditor, TakesTimesThatAreNoDates) {
  EditableControl c;
  c->SetDuration(1e300);
  c.ShowEditor([](ScriptedEditTimesForm& form) {
    EXPECT_EQ(form.EndText(), u"");
    Accept(form);
  });
  EXPECT_EQ(c->Duration(), 1e300);
}

}  // namespace
}  // namespace mur::test
