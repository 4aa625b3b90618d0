#pragma once

#include <murtimeline/dialogs/dialog_form.h>
#include <murtimeline/qt/dialogs/date_time_window.h>
#include <murtimeline/qt/dialogs/edit_times_window.h>
#include <murtimeline/qt/dialogs/window_port.h>

namespace mur::qt {

/// The form of the edit-times dialog on a window.
class EditTimesForm final : public IEditTimesForm {
 public:
  explicit EditTimesForm(EditTimesWindow* WindowA);

  WindowPort& Window() override { return mPort; }
  String StartText() const override;
  void SetStartText(StringView TextA) override;
  String EndText() const override;
  void SetEndText(StringView TextA) override;
  Date DurationValue() const override;
  void SetDurationValue(Date ValueA) override;

 private:
  QPointer<EditTimesWindow> mWindow;
  WindowPort mPort;
};

/// The form of the date-time picker on a window.
class DateTimeForm final : public IDateTimeForm {
 public:
  explicit DateTimeForm(DateTimeWindow* WindowA);

  WindowPort& Window() override { return mPort; }
  Date DateValue() const override;
  void SetDateValue(Date ValueA) override;
  Date TimeValue() const override;
  void SetTimeValue(Date ValueA) override;
  String DateTimeText() const override;
  void SetDateTimeText(StringView TextA) override;

 private:
  QPointer<DateTimeWindow> mWindow;
  WindowPort mPort;
};

}  // namespace mur::qt
