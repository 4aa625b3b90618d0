#pragma once

#include <murtimeline/automation/date.h>
#include <murtimeline/win32/dialogs/dialog_controls.h>

namespace mur::win32 {

/// A picker of the platform's that edits the time of day of a moment, to the second; it keeps the day and
/// what is below a second.
class TimeField {
 public:
  TimeField(DialogControls& ControlsA, int IdA) : mControls(ControlsA), mId(IdA) {}

  /// Adds it as the next control. `FormatA` is one of the platform's; none is the region's own.
  void Add(const wchar_t* FormatA = nullptr);

  Date Value() const { return mValue; }
  /// Throws Overflow outside the date range.
  void SetValue(Date ValueA);
  /// Takes what the picker said. True when the user chose another time.
  bool Take(const NMHDR& NoteA);
  /// The room it needs.
  SIZE Measure() const;

 private:
  DialogControls& mControls;
  int mId;
  Date mValue;
  int mShownSecond = -1;  // of the day
};

}  // namespace mur::win32
