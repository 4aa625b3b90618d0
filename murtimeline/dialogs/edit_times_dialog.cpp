#include <cmath>

#include <murtimeline/automation/guard.h>
#include <murtimeline/dialogs/date_time_picker.h>
#include <murtimeline/dialogs/edit_times_dialog.h>
#include <murtimeline/dialogs/moments.h>
#include <murtimeline/dialogs/required_form.h>

namespace mur {
namespace {

constexpr int kStart = 1, kEnd = 2;  // the buttons "Change"

String TextOf(Date MomentA) {
  return MomentText(MomentA, MomentA);
}

}  // namespace

FMURTLRenderConfig::FMURTLRenderConfig(DialogForms& FormsA)
    : FMURTLRenderConfig(RequiredForm(FormsA.MakeEditTimesForm())) {}

FMURTLRenderConfig::FMURTLRenderConfig(std::unique_ptr<IEditTimesForm> FormA)
    : Dialog(FormA->Window()), mForm(std::move(FormA)) {
  Listen(mForm->ChangeClick, [this](int index) { ChangeClick(index); });
  Listen(mForm->DurationChange, [this] { DurationChange(); });
}

void FMURTLRenderConfig::SetWorldTimeT0(Date WorldTimeT0A) {
  mWorldTimeT0 = WorldTimeT0A;
  Refresh();
}

void FMURTLRenderConfig::SetDuration(double DurationA) {
  mDuration = DurationA;
  Refresh();
}

void FMURTLRenderConfig::Refresh() {
  ResumeNext([&] {
    const String text = TextOf(mWorldTimeT0);
    if (mForm->StartText() != text) mForm->SetStartText(text);
  });
  ResumeNext([&] {
    String text;
    ResumeNext([&] { text = TextOf(AddSeconds(mWorldTimeT0, mDuration)); });
    if (mForm->EndText() != text) mForm->SetEndText(text);
  });
  ResumeNext([&] { mForm->SetDurationValue(Date::FromDays(mDuration / kSecondsPerDay)); });
}

// A value that is no number is the one failure that the form is told.
void FMURTLRenderConfig::DurationChange() {
  double seconds = mDuration;
  ResumeNext([&] { seconds = mForm->DurationValue().Seconds(); });
  if (!std::isfinite(seconds)) throw AutomationError(ErrorCode::Overflow);
  mDuration = seconds;
  Refresh();
}

void FMURTLRenderConfig::ChangeClick(int IndexA) {
  ResumeNext([&] {
    Date moment = mWorldTimeT0;
    if (IndexA == kEnd) ResumeNext([&] { moment = AddSeconds(mWorldTimeT0, mDuration); });
    const auto picker = Make<FDateTimePicker>(mForm->Window().Forms());
    picker->SetTitle(IndexA == kStart ? u"Edit Timeline Start Time" : u"Edit Timeline Stop Time");
    picker->SetCommentary(u"Use this window to change the displayed duration of the Timeline");
    picker->SetTheDateTime(moment);
    picker->Show();
    if (picker->Cancelled()) return;
    moment = picker->TheDateTime();
    if (IndexA == kStart) {
      mWorldTimeT0 = moment;
    } else {
      mDuration = moment.Days() - mWorldTimeT0.Days();  // in days, deliberately
    }
  });
  Refresh();
}

}  // namespace mur
