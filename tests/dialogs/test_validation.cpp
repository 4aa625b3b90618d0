#include <functional>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "tests/dialogs/picker_fixture.h"

namespace mur::test {
namespace {

TEST(Validation, GetsTheComposedMomentOnceWithNothingRefused) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  std::vector<Date> proposed;
  const auto connection =
      picker->ValidateSelectedDate.Connect([&](Date& moment, bool& cancel, String& message) {
        proposed.push_back(moment);
        EXPECT_FALSE(cancel);
        EXPECT_EQ(message, u"");
      });
  picker.Show([](ScriptedDateTimeForm& form) { PressOk(form.Window()); });
  EXPECT_EQ(proposed, std::vector<Date>{kMorning});
  EXPECT_EQ(picker->TheDateTime(), kMorning);
}

TEST(Validation, MayChangeTheMoment) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  const auto connection = picker->ValidateSelectedDate.Connect(
      [](Date& moment, bool&, String&) { moment = DateOf(2010, 5, 6, 7, 8, 9); });
  picker.Show([](ScriptedDateTimeForm& form) {
    PressOk(form.Window());
    EXPECT_EQ(form.DateTimeText(), u"Thursday, May 6, 2010  7:08:09 AM");
  });
  EXPECT_EQ(picker->TheDateTime(), DateOf(2010, 5, 6, 7, 8, 9));
}

TEST(Validation, OfAMomentWithFractionsGivesWholeSeconds) {
  Picker picker;
  const auto connection = picker->ValidateSelectedDate.Connect(
      [](Date& moment, bool&, String&) { moment = Date::Unchecked(kMorning.Days() + 0.9 / kSecondsPerDay); });
  picker.Show([](ScriptedDateTimeForm& form) { PressOk(form.Window()); });
  EXPECT_EQ(picker->TheDateTime(), kMorning);
}

// Refuses with this message; gives the messages shown and checks that the window stayed open.
std::vector<ScriptedForms::Message> Refused(StringView MessageA) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  const auto connection = picker->ValidateSelectedDate.Connect([&](Date&, bool& cancel, String& message) {
    cancel = true;
    message = MessageA;
  });
  picker.Show([&](ScriptedDateTimeForm& form) {
    PressOk(form.Window());
    EXPECT_TRUE(form.Window().IsShown());
    EXPECT_FALSE(picker->Cancelled());
    EXPECT_EQ(picker->TheDateTime(), Date());
    form.Window().Press(kCancelButton);
  });
  EXPECT_TRUE(picker->Cancelled());
  EXPECT_EQ(picker->TheDateTime(), Date());
  return picker.forms.Messages();
}

TEST(Validation, RefusesWithItsMessageAndKeepsTheWindowOpen) {
  const std::vector<ScriptedForms::Message> expected{{u" Too early ", u"Invalid Date/Time"}};
  EXPECT_EQ(Refused(u" Too early "), expected);
}

TEST(Validation, RefusesSilentlyWithABlankMessage) {
  EXPECT_TRUE(Refused(u"").empty());
  EXPECT_TRUE(Refused(u"   ").empty());
}

TEST(Validation, TakesOnlySpacesForBlank) {
  EXPECT_EQ(Refused(u"\t").size(), 1U);
}

TEST(Validation, ShowsNoMessageOfAnAcceptedMoment) {
  Picker picker;
  const auto connection =
      picker->ValidateSelectedDate.Connect([](Date&, bool&, String& message) { message = u"unused"; });
  picker.Show([](ScriptedDateTimeForm& form) { PressOk(form.Window()); });
  EXPECT_TRUE(picker.forms.Messages().empty());
}

TEST(Validation, PutsAChangedMomentIntoTheWindowAlsoWhenItRefuses) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  const auto connection = picker->ValidateSelectedDate.Connect([](Date& moment, bool& cancel, String&) {
    moment = DateOf(2010, 5, 6, 7, 8, 9);
    cancel = true;
  });
  picker.Show([&](ScriptedDateTimeForm& form) {
    PressOk(form.Window());
    EXPECT_EQ(form.DateValue(), DateOf(2010, 5, 6, 7, 8, 9));
    EXPECT_EQ(form.TimeValue(), DateOf(2010, 5, 6, 7, 8, 9));
  });
}

TEST(Validation, IsSkippedByTheCloseBoxAfterARefusalAndTheMomentIsTaken) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  int asked = 0;
  const auto connection = picker->ValidateSelectedDate.Connect([&](Date&, bool& cancel, String&) {
    ++asked;
    cancel = true;
  });
  picker.Show([](ScriptedDateTimeForm& form) {
    PressOk(form.Window());
    form.PickTime(DateOf(2000, 1, 1, 7));
    form.Window().PressCloseBox();
  });
  EXPECT_EQ(asked, 1);
  EXPECT_FALSE(picker->Cancelled());
  EXPECT_EQ(picker->TheDateTime(), DateOf(2000, 1, 1, 7));
}

TEST(Validation, MayRefuseAgainAndAcceptAtLast) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  int asked = 0;
  const auto connection =
      picker->ValidateSelectedDate.Connect([&](Date&, bool& cancel, String&) { cancel = ++asked < 3; });
  picker.Show([](ScriptedDateTimeForm& form) {
    for (int press = 0; press < 5; ++press) PressOk(form.Window());
  });
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(picker->TheDateTime(), kMorning);
}

TEST(Validation, ThatThrowsHasSaidWhatItSaidUntilThen) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  bool refuses = true;
  const auto connection = picker->ValidateSelectedDate.Connect([&](Date&, bool& cancel, String& message) {
    cancel = refuses;
    message = u"no";
    throw 42;
  });
  picker.Show([&](ScriptedDateTimeForm& form) {
    PressOk(form.Window());
    EXPECT_TRUE(form.Window().IsShown());
    refuses = false;
    PressOk(form.Window());
    EXPECT_FALSE(form.Window().IsShown());
  });
  EXPECT_EQ(picker.forms.Messages().size(), 1U);
  EXPECT_EQ(picker->TheDateTime(), kMorning);
}

TEST(Validation, ThatGivesNoDateLeavesTheWindowAsItIs) {
  Picker picker;
  picker->SetTheDateTime(kMorning);
  const auto connection = picker->ValidateSelectedDate.Connect([](Date& moment, bool&, String&) {
    moment = Date::Unchecked(std::numeric_limits<double>::quiet_NaN());
  });
  picker.Show([](ScriptedDateTimeForm& form) { PressOk(form.Window()); });
  EXPECT_EQ(picker->TheDateTime(), kMorning);
}

// Runs a deed inside the validation of a moment that is accepted or refused then.
void WhileValidating(Picker& PickerA, bool RefuseA, const std::function<void(ScriptedDateTimeForm&)>& DeedA) {
  PickerA->SetTheDateTime(kMorning);
  ScriptedDateTimeForm* shown = nullptr;
  int asked = 0;
  const auto connection = PickerA->ValidateSelectedDate.Connect([&](Date&, bool& cancel, String&) {
    ++asked;
    cancel = RefuseA;
    DeedA(*shown);
  });
  PickerA.Show([&](ScriptedDateTimeForm& form) {
    shown = &form;
    PressOk(form.Window());
  });
  EXPECT_EQ(asked, 1);
}

TEST(Validation, IsNotEnteredAgainByOkInsideIt) {
  Picker picker;
  WhileValidating(picker, false, [](ScriptedDateTimeForm& form) { PressOk(form.Window()); });
  EXPECT_EQ(picker->TheDateTime(), kMorning);
}

TEST(Validation, CannotBeAvoidedByTheCloseBoxInsideIt) {
  Picker picker;
  WhileValidating(picker, true, [](ScriptedDateTimeForm& form) {
    form.Window().PressCloseBox();
    EXPECT_TRUE(form.Window().IsShown());
  });
}

TEST(Validation, IsInVainWhenCancelIsPressedInsideIt) {
  Picker picker;
  WhileValidating(picker, false, [](ScriptedDateTimeForm& form) { form.Window().Press(kCancelButton); });
  EXPECT_TRUE(picker->Cancelled());
  EXPECT_EQ(picker->TheDateTime(), Date());
}

TEST(Validation, IsInVainWhenTheWindowVanishesInsideIt) {
  Picker picker;
  WhileValidating(picker, false, [](ScriptedDateTimeForm& form) { form.Window().Vanish(); });
  EXPECT_TRUE(picker->Cancelled());
  EXPECT_EQ(picker->TheDateTime(), Date());
}

TEST(Validation, MayShowTheOpenDialogAgainWhichComesToTheFront) {
  Picker picker;
  WhileValidating(picker, false, [&](ScriptedDateTimeForm&) {
    picker.log.Take();
    picker->Show();
    EXPECT_EQ(picker.log.Take(), "BringToFront()");
  });
  EXPECT_EQ(picker->TheDateTime(), kMorning);
}

TEST(Validation, MayOpenAnotherDialog) {
  Picker picker;
  const auto other = Make<FDateTimePicker>(picker.forms);
  WhileValidating(picker, false, [&](ScriptedDateTimeForm&) {
    other->SetTheDateTime(DateOf(2010, 5, 6));
    picker.forms.SetDateTimeScript([](ScriptedDateTimeForm& form) { PressOk(form.Window()); });
    other->Show();
  });
  EXPECT_EQ(other->TheDateTime(), DateOf(2010, 5, 6));
  EXPECT_EQ(picker->TheDateTime(), kMorning);
}

TEST(Validation, MayLetTheDialogGo) {
  Picker picker;
  WhileValidating(picker, false, [&](ScriptedDateTimeForm&) { picker.dialog = nullptr; });
}

}  // namespace
}  // namespace mur::test
