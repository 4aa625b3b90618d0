#pragma once

#include <memory>

#include <murtimeline/dialogs/dialog.h>

namespace mur {

/// The dialog in which the user picks a day and a time of day.
///
///     const auto picker = Make<FDateTimePicker>(forms);
///     picker->SetTheDateTime(start);
///     picker->Show();
///     if (!picker->Cancelled()) start = picker->TheDateTime();
class MUR_API FDateTimePicker final : public Dialog {
 public:
  /// Throws ObjectNotSet when `FormsA` makes no form, and what it throws.
  explicit FDateTimePicker(DialogForms& FormsA);

  /// Raised when the user chose "OK", before the window closes. A listener may change the moment; or refuse
  /// it, and then the window stays open, after a message box with the message unless that is blank. A
  /// listener that throws has said what it said until then.
  Event<Date& /*ProposedDateTimeA*/, bool& /*CancelA*/, String& /*CancelMsgA*/> ValidateSelectedDate;

  /// The moment that was picked, in whole seconds; 0 until then. What was set is not read back.
  Date TheDateTime() const { return mTheDateTime; }
  /// The moment that the window shows; one outside the date range is ignored.
  void SetTheDateTime(Date DateTimeA);

 private:
  explicit FDateTimePicker(std::unique_ptr<IDateTimeForm> FormA);

  void QueryUnload(UnloadRequest RequestA, bool& CancelA) override;
  void Unloading() override;
  Date PickedMoment() const;
  void Refresh();

  std::unique_ptr<IDateTimeForm> mForm;
  Date mTheDateTime;
};

}  // namespace mur
