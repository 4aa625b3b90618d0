#include <murtimeline/automation/guard.h>
#include <murtimeline/dialogs/date_time_picker.h>
#include <murtimeline/dialogs/moments.h>
#include <murtimeline/dialogs/required_form.h>

namespace mur {
namespace {
constexpr StringView kRefused = u"Invalid Date/Time";

bool IsBlank(StringView TextA) {
  return TextA.find_first_not_of(u' ') == StringView::npos;
}
}  // namespace

FDateTimePicker::FDateTimePicker(DialogForms& FormsA)
    : FDateTimePicker(RequiredForm(FormsA.MakeDateTimeForm())) {}

FDateTimePicker::FDateTimePicker(std::unique_ptr<IDateTimeForm> FormA)
    : Dialog(FormA->Window()), mForm(std::move(FormA)) {
  Listen(mForm->DateChange, [this] { Refresh(); });
  Listen(mForm->TimeChange, [this] { Refresh(); });
}

void FDateTimePicker::SetTheDateTime(Date DateTimeA) {
  if (!DateTimeA.InRange()) return;
  ResumeNext([&] { mForm->SetTimeValue(DateTimeA); });
  ResumeNext([&] { mForm->SetDateValue(DateTimeA); });
  Refresh();
}

void FDateTimePicker::Refresh() {
  ResumeNext([&] {
    const String text = MomentText(mForm->DateValue(), mForm->TimeValue());
    if (mForm->DateTimeText() != text) mForm->SetDateTimeText(text);
  });
}

Date FDateTimePicker::PickedMoment() const {
  Date moment;
  ResumeNext([&] { moment = ComposeMoment(mForm->DateValue(), mForm->TimeValue()); });
  return moment;
}

// Only "OK" is asked about. After a refusal Cancelled stays False, so the close box then takes the moment as
// it stands.
void FDateTimePicker::QueryUnload(UnloadRequest RequestA, bool& CancelA) {
  if (RequestA != UnloadRequest::ByProgram || Cancelled()) return;
  Date proposed = PickedMoment();
  bool refused = false;
  String message;
  ResumeNext([&] { ValidateSelectedDate.Raise(proposed, refused, message); });
  if (refused) {
    if (!IsBlank(message)) ResumeNext([&] { mForm->Window().ShowMessage(message, kRefused); });
    CancelA = true;
  }
  SetTheDateTime(proposed);
}

void FDateTimePicker::Unloading() {
  if (!Cancelled()) mTheDateTime = PickedMoment();
}

}  // namespace mur
