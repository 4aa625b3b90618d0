#pragma once

#include <QCalendarWidget>
#include <QLabel>

#include <murtimeline/qt/dialogs/dialog_window.h>
#include <murtimeline/qt/dialogs/time_field.h>

namespace mur::qt {

/// The window of the date-time picker.
class DateTimeWindow final : public DialogWindow {
  Q_OBJECT

 public:
  explicit DateTimeWindow(QWidget* OwnerA);

  Date DateValue() const { return mDateValue; }
  /// Nothing is emitted.
  void SetDateValue(Date ValueA);
  TimeField& Time() const { return *mTime; }
  QLabel& Moment() const { return *mMoment; }

 Q_SIGNALS:
  /// By the user.
  void dateEdited();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void DressCalendar();

  QCalendarWidget* mDate;
  TimeField* mTime;
  QLabel* mMoment;
  Date mDateValue;
  bool mIsByKey = false;  // the last input to the calendar
};

}  // namespace mur::qt
