#include <limits>

#include <gtest/gtest.h>

#include "tests/dialogs/picker_fixture.h"

namespace mur::test {
namespace {

TEST(DateTimePicker, ShowsTheMomentThatItIsGiven) {
  Picker picker;
  picker.log.Take();
  picker->SetTheDateTime(kMorning);
  EXPECT_EQ(picker.log.Take(),
            "SetTimeValue(36526.250000); SetDateValue(36526.250000); "
            "SetDateTimeText(Saturday, January 1, 2000  6:00:00 AM)");
}

TEST(DateTimePicker, DoesNotReadBackWhatItIsGiven) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  EXPECT_EQ(picker->TheDateTime(), Date());
}

TEST(DateTimePicker, WritesItsLabelOnlyWhenItDiffers) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  picker.log.Take();
  picker->SetTheDateTime(kMorning);
  EXPECT_EQ(picker.log.Take(), "SetTimeValue(36526.250000); SetDateValue(36526.250000)");
}

TEST(DateTimePicker, ShowsTheWholeMomentWheneverTheUserChangesAPart) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  picker.Show([&](ScriptedDateTimeForm& form) {
    picker.log.Take();
    form.PickDate(DateOf(2001, 2, 3, 23, 59, 59));
    form.PickTime(DateOf(1999, 9, 9, 18, 30, 15));
  });
  EXPECT_EQ(picker.log.Take(),
            "SetDateTimeText(Saturday, February 3, 2001  6:00:00 AM); "
            "SetDateTimeText(Saturday, February 3, 2001  6:30:15 PM)");
}

TEST(DateTimePicker, GivesTheDayOfTheCalendarAndTheTimeOfThePicker) {
  Picker picker;
  picker.Show([](ScriptedDateTimeForm& form) {
    form.PickDate(DateOf(2001, 2, 3, 23, 59, 59));
    form.PickTime(Date::Unchecked(DateOf(1999, 9, 9, 18, 30, 15).Days() + 0.75 / kSecondsPerDay));
    PressOk(form.Window());
  });
  EXPECT_FALSE(picker->Cancelled());
  EXPECT_EQ(picker->TheDateTime(), DateOf(2001, 2, 3, 18, 30, 15));
}

TEST(DateTimePicker, ReadsZeroAfterCancel) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  picker.Show([](ScriptedDateTimeForm& form) { form.Window().PressEscape(); });
  EXPECT_TRUE(picker->Cancelled());
  EXPECT_EQ(picker->TheDateTime(), Date());
}

TEST(DateTimePicker, ReadsZeroAfterTheCloseBox) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  picker.Show([](ScriptedDateTimeForm& form) { form.Window().PressCloseBox(); });
  EXPECT_TRUE(picker->Cancelled());
  EXPECT_EQ(picker->TheDateTime(), Date());
}

TEST(DateTimePicker, AsksForNoValidationUnlessOkWasPressed) {
  Picker picker;
  int asked = 0;
  const auto connection = picker->ValidateSelectedDate.Connect([&](Date&, bool&, String&) { ++asked; });
  picker.Show([](ScriptedDateTimeForm& form) { form.Window().PressEscape(); });
  picker.Show([](ScriptedDateTimeForm& form) { form.Window().PressCloseBox(); });
  picker.Show([](ScriptedDateTimeForm& form) {
    form.Window().SetSystemCaption(kOkButton, u"Close");
    form.Window().Press(kOkButton);
  });
  EXPECT_EQ(asked, 0);
}

TEST(DateTimePicker, IgnoresAMomentOutsideTheDateRange) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  picker.log.Take();
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 3e6, -7e5, -1e300})
    picker->SetTheDateTime(Date::Unchecked(bad));
  EXPECT_EQ(picker.log.Take(), "");
}

TEST(DateTimePicker, TakesTheEndsOfTheDateRange) {
  for (const Date end : {DateOf(100, 1, 1), DateOf(9999, 12, 31, 23, 59, 59)}) {
    Picker picker;
    picker->SetTheDateTime(end);
    picker.Show([](ScriptedDateTimeForm& form) { PressOk(form.Window()); });
    EXPECT_EQ(picker->TheDateTime(), end);
  }
}

TEST(DateTimePicker, ShowsNothingOfWhatItsFormGivesOutsideTheDateRange) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  picker.Show([](ScriptedDateTimeForm& form) {
    form.PickDate(Date::Unchecked(1e300));
    EXPECT_EQ(form.DateTimeText(), u"");
    PressOk(form.Window());
  });
  EXPECT_FALSE(picker->Cancelled());
}

TEST(DateTimePicker, GoesOnAfterEveryFailingCallOfItsForm) {
  for (const char* failing : {"SetTimeValue", "SetDateValue", "DateValue", "TimeValue", "DateTimeText",
                              "SetDateTimeText", "ShowMessage"}) {
    Picker picker;
    const auto connection = picker->ValidateSelectedDate.Connect([](Date&, bool& cancel, String& message) {
      cancel = true;
      message = u"no";
    });
    picker.log.failing = failing;
    EXPECT_NO_THROW(picker->SetTheDateTime(kMorning)) << failing;
    EXPECT_NO_THROW(picker.Show([&](ScriptedDateTimeForm& form) {
      form.PickDate(kMorning);
      PressOk(form.Window());
      EXPECT_TRUE(form.Window().IsShown()) << failing;
    })) << failing;
    EXPECT_FALSE(picker->Cancelled()) << failing;
  }
}

TEST(DateTimePicker, ShowsTheRestOfAMomentWhenOnePartCannotBeSet) {
  Picker picker;
  picker.log.Take();
  picker.log.failing = "SetTimeValue";
  picker->SetTheDateTime(kMorning);
  EXPECT_EQ(picker.log.Take(),
            "SetTimeValue(36526.250000); SetDateValue(36526.250000); "
            "SetDateTimeText(Saturday, January 1, 2000  12:00:00 AM)");
}

}  // namespace
}  // namespace mur::test
