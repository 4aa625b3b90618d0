#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/dialogs/edit_times_dialog.h>

#include "tests/dialogs/dialog_fixture.h"

namespace mur::test {
namespace {

constexpr int kStart = 1, kEnd = 2;
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const Date kMorning = DateOf(2000, 1, 1, 6);

struct Editor : RecordingForms {
  Editor() {
    dialog->SetWorldTimeT0(kMorning);
    dialog->SetDuration(3600);
    log.Take();
  }
  FMURTLRenderConfig* operator->() const { return dialog.Get(); }

  // Shows the dialog to a user who does this.
  void Show(const ScriptedForms::EditTimesScript& ScriptA) {
    forms.SetEditTimesScript(ScriptA);
    dialog->Show();
  }

  // Shows the dialog to a user who presses a button "Change" and picks this moment.
  void Pick(int IndexA, Date MomentA) {
    forms.SetDateTimeScript([MomentA](ScriptedDateTimeForm& form) {
      form.PickDate(MomentA);
      form.PickTime(MomentA);
      PressOk(form.Window());
    });
    Show([IndexA](ScriptedEditTimesForm& form) {
      form.PressChange(IndexA);
      PressOk(form.Window());
    });
  }

  Ref<FMURTLRenderConfig> dialog = Make<FMURTLRenderConfig>(forms);
};

TEST(EditTimes, StartsAtDayZeroWithoutALength) {
  ScriptedForms forms;
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  EXPECT_EQ(dialog->WorldTimeT0(), Date());
  EXPECT_EQ(dialog->Duration(), 0);
}

TEST(EditTimes, ShowsStartEndAndLength) {
  RecordingForms recording;
  const auto dialog = Make<FMURTLRenderConfig>(recording.forms);
  recording.log.Take();
  dialog->SetWorldTimeT0(kMorning);
  EXPECT_EQ(recording.log.Take(),
            "SetStartText(Saturday, January 1, 2000  6:00:00 AM); "
            "SetEndText(Saturday, January 1, 2000  6:00:00 AM); SetDurationValue(0.000000)");
  dialog->SetDuration(3600);
  EXPECT_EQ(recording.log.Take(),
            "SetEndText(Saturday, January 1, 2000  7:00:00 AM); SetDurationValue(0.041667)");
}

TEST(EditTimes, WritesTextsOnlyWhenTheyDifferButAlwaysTheLength) {
  Editor editor;
  editor->SetDuration(3600);
  editor->SetWorldTimeT0(kMorning);
  EXPECT_EQ(editor.log.Take(), "SetDurationValue(0.041667); SetDurationValue(0.041667)");
}

TEST(EditTimes, TakesALengthFromThePicker) {
  Editor editor;
  editor.Show([&](ScriptedEditTimesForm& form) {
    editor.log.Take();
    form.PickDuration(Date::Unchecked(0.25));
    EXPECT_EQ(editor.log.Take(),
              "SetEndText(Saturday, January 1, 2000  12:00:00 PM); SetDurationValue(0.250000)");
    PressOk(form.Window());
  });
  EXPECT_EQ(editor->Duration(), 21600);
  EXPECT_EQ(editor->WorldTimeT0(), kMorning);
}

TEST(EditTimes, IgnoresWhatIsTypedIntoItsTexts) {
  Editor editor;
  editor.Show([](ScriptedEditTimesForm& form) {
    form.SetStartText(u"typed");
    form.SetEndText(u"typed");
    PressOk(form.Window());
  });
  EXPECT_EQ(editor->WorldTimeT0(), kMorning);
  EXPECT_EQ(editor->Duration(), 3600);
}

TEST(EditTimes, KeepsItsValuesWhenItIsClosedInWhateverWay) {
  for (const int button : {kCancelButton, kOkButton}) {
    Editor editor;
    editor.Show([button](ScriptedEditTimesForm& form) { form.Window().Press(button); });
    EXPECT_EQ(editor->WorldTimeT0(), kMorning);
    EXPECT_EQ(editor->Duration(), 3600);
    EXPECT_EQ(editor->Cancelled(), button == kCancelButton);
  }
}

TEST(EditTimes, OpensAFreshPickerAtTheStart) {
  Editor editor;
  editor.forms.SetDateTimeScript([](ScriptedDateTimeForm& form) {
    EXPECT_EQ(form.Window().Title(), u"Edit Timeline Start Time");
    EXPECT_EQ(form.Window().Commentary(),
              u"Use this window to change the displayed duration of the Timeline");
    EXPECT_EQ(form.DateTimeText(), u"Saturday, January 1, 2000  6:00:00 AM");
  });
  editor.Show([](ScriptedEditTimesForm& form) { form.PressChange(kStart); });
  EXPECT_NE(editor.log.Take().find("MakeDateTimeForm"), std::string::npos);
}

TEST(EditTimes, OpensAFreshPickerAtTheEnd) {
  Editor editor;
  editor.forms.SetDateTimeScript([](ScriptedDateTimeForm& form) {
    EXPECT_EQ(form.Window().Title(), u"Edit Timeline Stop Time");
    EXPECT_EQ(form.DateTimeText(), u"Saturday, January 1, 2000  7:00:00 AM");
  });
  editor.Show([](ScriptedEditTimesForm& form) { form.PressChange(kEnd); });
  EXPECT_NE(editor.log.Take().find("MakeDateTimeForm"), std::string::npos);
}

TEST(EditTimes, MovesTheEndWithAPickedStart) {
  Editor editor;
  editor.Pick(kStart, DateOf(2000, 1, 2, 8));
  EXPECT_EQ(editor->WorldTimeT0(), DateOf(2000, 1, 2, 8));
  EXPECT_EQ(editor->Duration(), 3600);
  const std::string log = editor.log.Take();
  EXPECT_NE(log.find("SetStartText(Sunday, January 2, 2000  8:00:00 AM); "
                     "SetEndText(Sunday, January 2, 2000  9:00:00 AM); SetDurationValue(0.041667)"),
            std::string::npos)
      << log;
}

TEST(EditTimes, AfterAPickedStopTimeHoldsItsLengthInDaysDeliberately) {
  Editor editor;
  editor.Pick(kEnd, DateOf(2000, 1, 1, 8));
  EXPECT_EQ(editor->WorldTimeT0(), kMorning);
  EXPECT_EQ(editor->Duration(), DateOf(2000, 1, 1, 8).Days() - kMorning.Days());
  EXPECT_NEAR(editor->Duration(), 2.0 / 24, 1e-10);
  const std::string log = editor.log.Take();
  EXPECT_NE(log.find("SetEndText(Saturday, January 1, 2000  6:00:00 AM); SetDurationValue(0.000001)"),
            std::string::npos)
      << log;
}

TEST(EditTimes, TakesAStopBeforeTheStart) {
  Editor editor;
  editor.Pick(kEnd, DateOf(1999, 12, 30, 6));
  EXPECT_EQ(editor->Duration(), -2);
}

TEST(EditTimes, TakesAnyOtherChangeForTheStop) {
  Editor editor;
  editor.forms.SetDateTimeScript([](ScriptedDateTimeForm& form) {
    EXPECT_EQ(form.DateTimeText(), u"Saturday, January 1, 2000  6:00:00 AM");
    form.PickDate(DateOf(2000, 1, 4));
    PressOk(form.Window());
  });
  editor.Show([](ScriptedEditTimesForm& form) { form.PressChange(3); });
  EXPECT_EQ(editor->Duration(), 3);
}

TEST(EditTimes, KeepsItsValuesWhenThePickIsCancelledAndWritesItsFieldsAgain) {
  for (const int index : {kStart, kEnd}) {
    Editor editor;
    editor.forms.SetDateTimeScript([&](ScriptedDateTimeForm& form) {
      form.PickDate(DateOf(2010, 1, 1));
      editor.log.Take();
    });
    editor.Show([&](ScriptedEditTimesForm& form) {
      form.SetStartText(u"typed");
      form.PressChange(index);
      EXPECT_EQ(editor.log.Take(),
                "SetStartText(Saturday, January 1, 2000  6:00:00 AM); SetDurationValue(0.041667)");
    });
    EXPECT_EQ(editor->WorldTimeT0(), kMorning);
    EXPECT_EQ(editor->Duration(), 3600);
  }
}

TEST(EditTimes, ShowsALengthOfADayOrMore) {
  Editor editor;
  editor->SetDuration(90000);
  EXPECT_EQ(editor.log.Take(), "SetEndText(Sunday, January 2, 2000  7:00:00 AM); SetDurationValue(1.041667)");
}

TEST(EditTimes, ShowsANegativeLength) {
  Editor editor;
  editor->SetDuration(-3600);
  EXPECT_EQ(editor.log.Take(),
            "SetEndText(Saturday, January 1, 2000  5:00:00 AM); SetDurationValue(-0.041667)");
}

TEST(EditTimes, LeavesTheEndEmptyAndTheLengthAsItWasWhereTheyAreNoDates) {
  for (const double bad : {kNotANumber, kInfinity, -kInfinity, 1e300, 3e6 * kSecondsPerDay}) {
    Editor editor;
    editor->SetDuration(bad);
    EXPECT_EQ(editor.log.Take(), "SetEndText()") << bad;
    EXPECT_TRUE(editor->Duration() == bad || std::isnan(bad));
  }
}

TEST(EditTimes, LeavesTheEndEmptyBeyondTheLastDate) {
  Editor editor;
  editor->SetWorldTimeT0(DateOf(9999, 12, 31, 23, 30));
  EXPECT_EQ(editor.log.Take(),
            "SetStartText(Friday, December 31, 9999  11:30:00 PM); SetEndText(); SetDurationValue(0.041667)");
}

TEST(EditTimes, LeavesBothTextsEmptyForAStartThatIsNoDate) {
  for (const double bad : {kNotANumber, kInfinity, 1e300}) {
    Editor editor;
    editor->SetWorldTimeT0(Date::Unchecked(bad));
    EXPECT_EQ(editor.log.Take(), "SetStartText(); SetEndText(); SetDurationValue(0.041667)") << bad;
  }
}

TEST(EditTimes, OpensThePickerAtTheStartWhereTheEndIsNoDate) {
  Editor editor;
  editor->SetDuration(1e300);
  editor.forms.SetDateTimeScript([](ScriptedDateTimeForm& form) {
    EXPECT_EQ(form.DateTimeText(), u"Saturday, January 1, 2000  6:00:00 AM");
  });
  editor.Show([](ScriptedEditTimesForm& form) { form.PressChange(kEnd); });
}

TEST(EditTimes, TellsTheFormOfALengthThatIsNoNumberAndKeepsItsOwn) {
  Editor editor;
  editor.Show([&](ScriptedEditTimesForm& form) {
    for (const double bad : {kNotANumber, kInfinity, 1e308}) {
      try {
        form.PickDuration(Date::Unchecked(bad));
        ADD_FAILURE() << bad << " was taken";
      } catch (const AutomationError& error) {
        EXPECT_EQ(error.Code(), ErrorCode::Overflow);
      }
    }
    PressOk(form.Window());
  });
  EXPECT_EQ(editor->Duration(), 3600);
}

TEST(EditTimes, SkipsWhatFailsInItsFormAndWritesTheRest) {
  Editor editor;
  editor.log.failing = "SetStartText";
  editor->SetWorldTimeT0(DateOf(2000, 1, 2, 6));
  EXPECT_EQ(
      editor.log.Take(),
      "SetStartText(Sunday, January 2, 2000  6:00:00 AM); SetEndText(Sunday, January 2, 2000  7:00:00 AM); "
      "SetDurationValue(0.041667)");
}

TEST(EditTimes, GoesOnAfterEveryFailingCallOfItsForms) {
  for (const char* failing : {"StartText", "SetStartText", "EndText", "SetEndText", "DurationValue",
                              "SetDurationValue", "Forms", "MakeDateTimeForm"}) {
    Editor editor;
    editor.log.failing = failing;
    editor->SetWorldTimeT0(kMorning);
    editor->SetDuration(60);
    editor.Show([](ScriptedEditTimesForm& form) {
      form.PressChange(kStart);
      form.PressChange(kEnd);
      form.PickDuration(Date::Unchecked(0.5));
      PressOk(form.Window());
    });
    EXPECT_FALSE(editor->Cancelled()) << failing;
    EXPECT_EQ(editor->WorldTimeT0(), kMorning) << failing;
    EXPECT_EQ(editor->Duration(), std::string(failing) == "DurationValue" ? 60 : 43200) << failing;
  }
}

TEST(EditTimes, MayVanishWhileThePickerIsOpen) {
  Editor editor;
  editor.Show([&](ScriptedEditTimesForm& form) {
    editor.forms.SetDateTimeScript([&](ScriptedDateTimeForm& picker) {
      picker.Window().Vanish();
      form.Window().Vanish();
    });
    form.PressChange(kStart);
  });
  EXPECT_TRUE(editor->Cancelled());
  EXPECT_EQ(editor->WorldTimeT0(), kMorning);
}

TEST(EditTimes, MayBeLetGoWhileThePickerIsOpen) {
  Editor editor;
  editor.forms.SetDateTimeScript([&](ScriptedDateTimeForm& form) {
    editor.dialog = nullptr;
    PressOk(form.Window());
  });
  editor.Show([](ScriptedEditTimesForm& form) { form.PressChange(kStart); });
  EXPECT_FALSE(editor.dialog);
}

}  // namespace
}  // namespace mur::test
