#include <gtest/gtest.h>

#include <murtimeline/dialogs/date_time_picker.h>
#include <murtimeline/dialogs/edit_times_dialog.h>

#include "tests/dialogs/dialog_fixture.h"

namespace mur::test {
namespace {

// What both dialogs share, shown on each of them.
template <class DialogA>
struct Kind;

template <>
struct Kind<FMURTLRenderConfig> {
  static void SetScript(ScriptedForms& FormsA, const std::function<void(ScriptedWindow&)>& ScriptA) {
    FormsA.SetEditTimesScript([ScriptA](ScriptedEditTimesForm& form) { ScriptA(form.Window()); });
  }
};

template <>
struct Kind<FDateTimePicker> {
  static void SetScript(ScriptedForms& FormsA, const std::function<void(ScriptedWindow&)>& ScriptA) {
    FormsA.SetDateTimeScript([ScriptA](ScriptedDateTimeForm& form) { ScriptA(form.Window()); });
  }
};

template <class DialogA>
class EveryDialog : public testing::Test {
 protected:
  // Shows a new dialog to a user who does this.
  Ref<DialogA> Shown(const std::function<void(ScriptedWindow&)>& ScriptA) {
    Kind<DialogA>::SetScript(recording.forms, ScriptA);
    const auto dialog = Make<DialogA>(recording.forms);
    dialog->Show();
    return dialog;
  }

  RecordingForms recording;
};

using Dialogs = testing::Types<FMURTLRenderConfig, FDateTimePicker>;
TYPED_TEST_SUITE(EveryDialog, Dialogs);

TYPED_TEST(EveryDialog, StartsCancelledWithoutTexts) {
  const auto dialog = Make<TypeParam>(this->recording.forms);
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_EQ(dialog->Title(), u"");
  EXPECT_EQ(dialog->Commentary(), u"");
  EXPECT_EQ(dialog->HelpTag(), u"");
}

TYPED_TEST(EveryDialog, HasCancelOnEscAndOkOnEnterAndHidesTheThirdButton) {
  this->recording.log.Take();
  const auto dialog = Make<TypeParam>(this->recording.forms);
  const std::string log = this->recording.log.Take();
  EXPECT_EQ(log.substr(log.find("; ") + 2),
            "SetSystemVisible(1, true); SetSystemVisible(2, true); SetSystemVisible(3, false); "
            "SetSystemCaption(1, Cancel); SetSystemCancel(1); SetSystemCaption(2, OK); SetSystemDefault(2)");
}

TYPED_TEST(EveryDialog, WritesTitleAndCommentaryOnlyWhenTheyDiffer) {
  const auto dialog = Make<TypeParam>(this->recording.forms);
  this->recording.log.Take();
  dialog->SetTitle(u"");
  dialog->SetTitle(u"T");
  dialog->SetTitle(u"T");
  dialog->SetTitle(u"t");
  dialog->SetCommentary(u"C");
  dialog->SetCommentary(u"C");
  EXPECT_EQ(this->recording.log.Take(), "SetTitle(T); SetTitle(t); SetCommentary(C)");
  EXPECT_EQ(dialog->Title(), u"t");
  EXPECT_EQ(dialog->Commentary(), u"C");
}

TYPED_TEST(EveryDialog, StoresItsHelpTagAndShowsNothingOfIt) {
  const auto dialog = Make<TypeParam>(this->recording.forms);
  this->recording.log.Take();
  dialog->SetHelpTag(u"topic");
  dialog->SetHelpTag(u"topic");
  EXPECT_EQ(dialog->HelpTag(), u"topic");
  EXPECT_EQ(this->recording.log.Take(), "");
}

TYPED_TEST(EveryDialog, IsAcceptedByOkAndByEnterAlone) {
  EXPECT_FALSE(this->Shown([](ScriptedWindow& window) { window.Press(kOkButton); })->Cancelled());
  EXPECT_FALSE(this->Shown([](ScriptedWindow& window) { window.PressEnter(); })->Cancelled());
  EXPECT_TRUE(this->Shown([](ScriptedWindow& window) { window.Press(kCancelButton); })->Cancelled());
  EXPECT_TRUE(this->Shown([](ScriptedWindow& window) { window.PressEscape(); })->Cancelled());
  EXPECT_TRUE(this->Shown([](ScriptedWindow& window) { window.PressCloseBox(); })->Cancelled());
}

// What a button with this caption does: whether the window closed, and whether the dialog is cancelled.
template <class Test>
std::string Pressed(Test& TestA, StringView CaptionA) {
  bool closed = false;
  const auto dialog = TestA.Shown([&](ScriptedWindow& window) {
    window.SetSystemVisible(kThirdButton, true);
    window.SetSystemCaption(kThirdButton, CaptionA);
    window.Press(kThirdButton);
    closed = !window.IsShown();
  });
  return std::string(closed ? "closed" : "open") + (dialog->Cancelled() ? ", cancelled" : ", accepted");
}

template <class DialogA>
class EveryDialogsButton : public EveryDialog<DialogA> {
 public:
  using EveryDialog<DialogA>::Shown;
};
TYPED_TEST_SUITE(EveryDialogsButton, Dialogs);

TYPED_TEST(EveryDialogsButton, DoesWhatItsCaptionSaysWhereverItStands) {
  EXPECT_EQ(Pressed(*this, u"OK"), "closed, accepted");
  EXPECT_EQ(Pressed(*this, u"Cancel"), "closed, cancelled");
  EXPECT_EQ(Pressed(*this, u"Close"), "closed, cancelled");
}

TYPED_TEST(EveryDialogsButton, DoesNothingWhenItSaysHelp) {
  EXPECT_EQ(Pressed(*this, u"Help"), "open, cancelled");
}

TYPED_TEST(EveryDialogsButton, DoesNothingUnderAnyOtherCaption) {
  for (const StringView caption : {u"", u"ok", u"Ok", u"OK ", u" OK", u"&OK", u"cancel", u"CLOSE", u"Apply"})
    EXPECT_EQ(Pressed(*this, caption), "open, cancelled") << ToUtf8(caption);
}

TYPED_TEST(EveryDialogsButton, DoesNothingWhenItsCaptionCannotBeRead) {
  const auto dialog = this->Shown([this](ScriptedWindow& window) {
    this->recording.log.failing = "SystemCaption";
    window.Press(kOkButton);
    EXPECT_TRUE(window.IsShown());
  });
  EXPECT_TRUE(dialog->Cancelled());
}

TYPED_TEST(EveryDialog, StaysOpenAndAcceptedWhenItsWindowCannotBeClosed) {
  const auto dialog = this->Shown([this](ScriptedWindow& window) {
    this->recording.log.failing = "Unload";
    window.Press(kOkButton);
    EXPECT_TRUE(window.IsShown());
  });
  EXPECT_FALSE(dialog->Cancelled());
}

TYPED_TEST(EveryDialog, GoesOnAfterEveryFailingCallOfItsForm) {
  const auto script = [](ScriptedWindow& window) { window.Press(kOkButton); };
  Kind<TypeParam>::SetScript(this->recording.forms, script);
  for (const char* failing :
       {"Title", "SetTitle", "Commentary", "SetCommentary", "SystemCaption", "SetSystemCaption",
        "SetSystemVisible", "SetSystemDefault", "SetSystemCancel", "ShowModal", "Unload", "BringToFront"}) {
    this->recording.log.failing = failing;
    const auto dialog = Make<TypeParam>(this->recording.forms);
    EXPECT_NO_THROW(dialog->SetTitle(u"T")) << failing;
    EXPECT_NO_THROW(dialog->SetCommentary(u"C")) << failing;
    EXPECT_NO_THROW(dialog->Show()) << failing;
    EXPECT_NO_THROW(dialog->BringToFront()) << failing;
    EXPECT_EQ(dialog->Title(), std::string(failing).ends_with("Title") ? u"" : u"T") << failing;
    EXPECT_EQ(dialog->Commentary(), std::string(failing).ends_with("Commentary") ? u"" : u"C") << failing;
  }
}

TYPED_TEST(EveryDialog, IsCancelledWhenItCannotBeShown) {
  this->recording.log.failing = "ShowModal";
  EXPECT_TRUE(this->Shown([](ScriptedWindow& window) { window.Press(kOkButton); })->Cancelled());
}

TYPED_TEST(EveryDialog, NeedsAForm) {
  class NoForms final : public DialogForms {
    std::unique_ptr<IEditTimesForm> MakeEditTimesForm() override { return nullptr; }
    std::unique_ptr<IDateTimeForm> MakeDateTimeForm() override { return nullptr; }
  };
  NoForms forms;
  EXPECT_THROW(Make<TypeParam>(forms), AutomationError);
}

TYPED_TEST(EveryDialog, ComesToTheFrontWhenItIsShownWhileItIsOpen) {
  TypeParam* dialog = nullptr;
  Kind<TypeParam>::SetScript(this->recording.forms, [&](ScriptedWindow& window) {
    this->recording.log.Take();
    dialog->Show();
    EXPECT_EQ(this->recording.log.Take(), "BringToFront()");
    EXPECT_TRUE(window.IsShown());
  });
  const auto held = Make<TypeParam>(this->recording.forms);
  dialog = held.Get();
  dialog->Show();
}

TYPED_TEST(EveryDialog, DoesNotComeToTheFrontWhenItIsClosed) {
  const auto dialog = this->Shown([](ScriptedWindow&) {});
  this->recording.log.Take();
  dialog->BringToFront();
  EXPECT_EQ(this->recording.log.Take(), "");
}

TYPED_TEST(EveryDialog, CountsAsCancelledWhenItsWindowVanishes) {
  EXPECT_TRUE(this->Shown([](ScriptedWindow& window) { window.Vanish(); })->Cancelled());
}

TYPED_TEST(EveryDialog, MayBeLetGoWhileItIsOpen) {
  Ref<TypeParam> dialog;
  bool played = false;
  Kind<TypeParam>::SetScript(this->recording.forms, [&](ScriptedWindow& window) {
    dialog = nullptr;
    window.Press(kOkButton);
    played = !window.IsShown();
  });
  dialog = Make<TypeParam>(this->recording.forms);
  dialog->Show();
  EXPECT_TRUE(played);
}

TYPED_TEST(EveryDialog, TakesAnotherShowingWithTheAnswerOfTheFirst) {
  const auto dialog = this->Shown([](ScriptedWindow& window) { window.Press(kOkButton); });
  Kind<TypeParam>::SetScript(this->recording.forms, [](ScriptedWindow& window) { window.PressCloseBox(); });
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
}

TYPED_TEST(EveryDialog, EndsWithTheErrorOfItsWindowSwallowed) {
  EXPECT_NO_THROW(EXPECT_TRUE(this->Shown([](ScriptedWindow&) { throw 42; })->Cancelled()));
}

}  // namespace
}  // namespace mur::test
