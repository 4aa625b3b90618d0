#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/dialogs/forms.h>
#include <murtimeline/qt/dialogs/live_widget.h>
#include <murtimeline/qt/event_guard.h>

namespace mur::qt {

EditTimesForm::EditTimesForm(EditTimesWindow* WindowA) : mWindow(WindowA), mPort(WindowA) {
  QObject::connect(WindowA, &EditTimesWindow::changeClicked,
                   [this](int index) { GuardEvent([&] { ChangeClick.Raise(index); }); });
  QObject::connect(&WindowA->Duration(), &TimeField::edited,
                   [this] { GuardEvent([&] { DurationChange.Raise(); }); });
}

String EditTimesForm::StartText() const {
  return ToString(LiveWidget(mWindow).Start().text());
}

void EditTimesForm::SetStartText(StringView TextA) {
  ShowText(LiveWidget(mWindow).Start(), ToQString(TextA));
}

String EditTimesForm::EndText() const {
  return ToString(LiveWidget(mWindow).End().text());
}

void EditTimesForm::SetEndText(StringView TextA) {
  ShowText(LiveWidget(mWindow).End(), ToQString(TextA));
}

Date EditTimesForm::DurationValue() const {
  return LiveWidget(mWindow).Duration().Value();
}

void EditTimesForm::SetDurationValue(Date ValueA) {
  LiveWidget(mWindow).Duration().SetValue(ValueA);
}

DateTimeForm::DateTimeForm(DateTimeWindow* WindowA) : mWindow(WindowA), mPort(WindowA) {
  QObject::connect(WindowA, &DateTimeWindow::dateEdited, [this] { GuardEvent([&] { DateChange.Raise(); }); });
  QObject::connect(&WindowA->Time(), &TimeField::edited, [this] { GuardEvent([&] { TimeChange.Raise(); }); });
}

Date DateTimeForm::DateValue() const {
  return LiveWidget(mWindow).DateValue();
}

void DateTimeForm::SetDateValue(Date ValueA) {
  LiveWidget(mWindow).SetDateValue(ValueA);
}

Date DateTimeForm::TimeValue() const {
  return LiveWidget(mWindow).Time().Value();
}

void DateTimeForm::SetTimeValue(Date ValueA) {
  LiveWidget(mWindow).Time().SetValue(ValueA);
}

String DateTimeForm::DateTimeText() const {
  return ToString(LiveWidget(mWindow).Moment().text());
}

void DateTimeForm::SetDateTimeText(StringView TextA) {
  LiveWidget(mWindow).Moment().setText(ToQString(TextA));
}

}  // namespace mur::qt
