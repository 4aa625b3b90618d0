#include <algorithm>

#include <murtimeline/win32/dialogs/date_time_form.h>

namespace mur::win32 {
namespace {

using namespace date_time_id;

constexpr int kGap = 8, kRowGap = 12, kMomentGap = 24;  // logical pixels

int Middle(int TopA, LONG RowA, LONG ExtentA) {
  return TopA + static_cast<int>(RowA - ExtentA) / 2;
}

}  // namespace

DateTimeForm::DateTimeForm(HINSTANCE ModuleA, HWND OwnerA)
    : DialogWindow(ModuleA, OwnerA), mDate(Controls(), kDate), mTime(Controls(), kTime) {
  mDate.Add();
  Controls().Add(kTimeCaption, kLabel, u"Time");
  mTime.Add();
  Controls().Add(kMoment, kLabel);
  Complete();
}

Date DateTimeForm::DateValue() const {
  RequireWindow();
  return mDate.Value();
}

void DateTimeForm::SetDateValue(Date ValueA) {
  RequireWindow();
  mDate.SetValue(ValueA);
}

Date DateTimeForm::TimeValue() const {
  RequireWindow();
  return mTime.Value();
}

void DateTimeForm::SetTimeValue(Date ValueA) {
  RequireWindow();
  mTime.SetValue(ValueA);
}

String DateTimeForm::DateTimeText() const {
  return TextOf(kMoment);
}

void DateTimeForm::SetDateTimeText(StringView TextA) {
  ShowText(kMoment, TextA);
}

void DateTimeForm::OnNotify(const NMHDR& NoteA) {
  if (mDate.Take(NoteA)) return DateChange.Raise();
  if (mTime.Take(NoteA)) TimeChange.Raise();
}

SIZE DateTimeForm::MeasureFields() const {
  const DialogControls& controls = Controls();
  const SIZE date = mDate.Measure(), time = mTime.Measure();
  const LONG caption = controls.MeasureText(kTimeCaption).cx + controls.Scaled(kGap);
  const LONG moment = controls.MeasureText(kMoment).cx + controls.Scaled(kMomentGap);
  return {std::max(date.cx, caption + time.cx + moment), date.cy + controls.Scaled(kRowGap) + time.cy};
}

// The calendar stands in the middle; below it the time at the left and the whole moment at the right.
void DateTimeForm::PlaceFields(const RECT& PlaceA) {
  const DialogControls& controls = Controls();
  const SIZE date = mDate.Measure(), time = mTime.Measure();
  const int left = static_cast<int>(PlaceA.left), top = static_cast<int>(PlaceA.top);
  const int spare = static_cast<int>(PlaceA.right - PlaceA.left - date.cx);
  controls.Place(kDate, left + spare / 2, top, date);

  const int row = top + static_cast<int>(date.cy) + controls.Scaled(kRowGap);
  const SIZE caption = controls.MeasureText(kTimeCaption), moment = controls.MeasureText(kMoment);
  controls.Place(kTimeCaption, left, Middle(row, time.cy, caption.cy), caption);
  controls.Place(kTime, left + static_cast<int>(caption.cx) + controls.Scaled(kGap), row, time);
  controls.Place(kMoment, static_cast<int>(PlaceA.right - moment.cx), Middle(row, time.cy, moment.cy),
                 moment);
}

}  // namespace mur::win32
