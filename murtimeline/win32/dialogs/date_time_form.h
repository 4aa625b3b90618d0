#pragma once

#include <murtimeline/win32/dialogs/day_field.h>
#include <murtimeline/win32/dialogs/dialog_window.h>
#include <murtimeline/win32/dialogs/time_field.h>

namespace mur::win32 {

namespace date_time_id {
inline constexpr int kDate = dialog_id::kFirstField;  ///< `mnvTheDate`
inline constexpr int kTimeCaption = kDate + 1;        ///< `Label1`
inline constexpr int kTime = kDate + 2;               ///< `dtpTheTime`
inline constexpr int kMoment = kDate + 3;             ///< `lblDateTime`
}  // namespace date_time_id

/// The form of the date-time picker, which is its window.
class DateTimeForm final : public IDateTimeForm, public DialogWindow {
 public:
  DateTimeForm(HINSTANCE ModuleA, HWND OwnerA);

  IDialogWindow& Window() override { return *this; }
  Date DateValue() const override;
  void SetDateValue(Date ValueA) override;
  Date TimeValue() const override;
  void SetTimeValue(Date ValueA) override;
  String DateTimeText() const override;
  void SetDateTimeText(StringView TextA) override;

 private:
  SIZE MeasureFields() const override;
  void PlaceFields(const RECT& PlaceA) override;
  int FirstField() const override { return date_time_id::kDate; }
  void OnButton(int /*IdA*/) override {}
  void OnNotify(const NMHDR& NoteA) override;

  DayField mDate;
  TimeField mTime;
};

}  // namespace mur::win32
