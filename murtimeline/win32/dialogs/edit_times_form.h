#pragma once

#include <murtimeline/win32/dialogs/dialog_window.h>
#include <murtimeline/win32/dialogs/time_field.h>

namespace mur::win32 {

namespace edit_times_id {
/// One row each, numbered 1 (start), 2 (end) and 3 (duration): its caption (`Label1`), its field and its
/// button.
inline constexpr int kCaption = dialog_id::kFirstField;
inline constexpr int kField = kCaption + 10;
inline constexpr int kChange = kCaption + 20;
}  // namespace edit_times_id

/// The form of the edit-times dialog, which is its window.
class EditTimesForm final : public IEditTimesForm, public DialogWindow {
 public:
  EditTimesForm(HINSTANCE ModuleA, HWND OwnerA);

  IDialogWindow& Window() override { return *this; }
  String StartText() const override;
  void SetStartText(StringView TextA) override;
  String EndText() const override;
  void SetEndText(StringView TextA) override;
  Date DurationValue() const override;
  void SetDurationValue(Date ValueA) override;

 private:
  void AddMoment(int RowA, StringView CaptionA);
  int CaptionWidth() const;
  int RowHeight() const;

  SIZE MeasureFields() const override;
  void PlaceFields(const RECT& PlaceA) override;
  int FirstField() const override;
  void OnButton(int IdA) override;
  void OnNotify(const NMHDR& NoteA) override;

  TimeField mDuration;
};

}  // namespace mur::win32
