#include <algorithm>

#include <murtimeline/win32/dialogs/edit_times_form.h>

namespace mur::win32 {
namespace {

using namespace edit_times_id;

constexpr int kStart = 1, kEnd = 2, kDuration = 3;         // the rows
constexpr int kGap = 8, kCaptionGap = 16, kFieldAir = 20;  // logical pixels

}  // namespace

EditTimesForm::EditTimesForm(HINSTANCE ModuleA, HWND OwnerA)
    : DialogWindow(ModuleA, OwnerA), mDuration(Controls(), kField + kDuration) {
  AddMoment(kStart, u"Start Time");
  AddMoment(kEnd, u"End Time");
  Controls().Add(kCaption + kDuration, kLabel, u"Duration");
  mDuration.Add(L"HH:mm:ss");
  Complete();
}

// Nothing reads these texts back, so they cannot be typed into either; they can still be reached, read out
// and copied.
void EditTimesForm::AddMoment(int RowA, StringView CaptionA) {
  Controls().Add(kCaption + RowA, kLabel, CaptionA);
  Controls().Add(kField + RowA, kReadOnlyText);
  Controls().Add(kChange + RowA, kButton, u"Change");
}

String EditTimesForm::StartText() const {
  return TextOf(kField + kStart);
}

void EditTimesForm::SetStartText(StringView TextA) {
  ShowText(kField + kStart, TextA);
}

String EditTimesForm::EndText() const {
  return TextOf(kField + kEnd);
}

void EditTimesForm::SetEndText(StringView TextA) {
  ShowText(kField + kEnd, TextA);
}

Date EditTimesForm::DurationValue() const {
  RequireWindow();
  return mDuration.Value();
}

void EditTimesForm::SetDurationValue(Date ValueA) {
  RequireWindow();
  mDuration.SetValue(ValueA);
}

int EditTimesForm::FirstField() const {
  return kField + kDuration;
}

void EditTimesForm::OnButton(int IdA) {
  if (IdA == kChange + kStart || IdA == kChange + kEnd) ChangeClick.Raise(IdA - kChange);
}

void EditTimesForm::OnNotify(const NMHDR& NoteA) {
  if (mDuration.Take(NoteA)) DurationChange.Raise();
}

int EditTimesForm::CaptionWidth() const {
  LONG widest = 0;
  for (const int row : {kStart, kEnd, kDuration})
    widest = std::max(widest, Controls().MeasureText(kCaption + row).cx);
  return static_cast<int>(widest) + Controls().Scaled(kCaptionGap);
}

int EditTimesForm::RowHeight() const {
  const SIZE change = Controls().ButtonSize(kChange + kStart);
  return std::max(static_cast<int>(change.cy), Controls().FieldHeight(kField + kStart));
}

SIZE EditTimesForm::MeasureFields() const {
  const int gap = Controls().Scaled(kGap),
            change = static_cast<int>(Controls().ButtonSize(kChange + kStart).cx);
  LONG field = mDuration.Measure().cx;
  for (const int row : {kStart, kEnd})
    field = std::max(field, Controls().MeasureText(kField + row).cx + Controls().Scaled(kFieldAir));
  return {CaptionWidth() + field + gap + change, 3 * RowHeight() + 2 * gap};
}

void EditTimesForm::PlaceFields(const RECT& PlaceA) {
  const DialogControls& controls = Controls();
  const int left = static_cast<int>(PlaceA.left), fieldLeft = left + CaptionWidth();
  const int height = RowHeight(), gap = controls.Scaled(kGap);
  const SIZE change = controls.ButtonSize(kChange + kStart);
  const int changeLeft = static_cast<int>(PlaceA.right - change.cx);
  const auto middle = [&](int row, int extent) {
    return static_cast<int>(PlaceA.top) + (row - 1) * (height + gap) + (height - extent) / 2;
  };
  for (const int row : {kStart, kEnd, kDuration}) {
    const SIZE caption = controls.MeasureText(kCaption + row);
    controls.Place(kCaption + row, left, middle(row, static_cast<int>(caption.cy)), caption);
  }
  const int fieldHeight = controls.FieldHeight(kField + kStart);
  for (const int row : {kStart, kEnd}) {
    controls.Place(kField + row, fieldLeft, middle(row, fieldHeight),
                   {changeLeft - gap - fieldLeft, fieldHeight});
    controls.Place(kChange + row, changeLeft, middle(row, static_cast<int>(change.cy)), change);
  }
  const SIZE duration = mDuration.Measure();
  controls.Place(kField + kDuration, fieldLeft, middle(kDuration, static_cast<int>(duration.cy)), duration);
}

}  // namespace mur::win32
