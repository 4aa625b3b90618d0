#pragma once

#include <murtimeline/automation/date.h>
#include <murtimeline/win32/dialogs/dialog_controls.h>

namespace mur::win32 {

/// A month calendar of the platform's. It knows the days from 14 September 1752 on; an earlier one is kept
/// while the nearest that it knows is shown.
class DayField {
 public:
  DayField(DialogControls& ControlsA, int IdA) : mControls(ControlsA), mId(IdA) {}

  /// Adds it as the next control.
  void Add();

  Date Value() const { return mValue; }
  /// Throws Overflow outside the date range.
  void SetValue(Date ValueA);
  /// Takes what the calendar said. True when the user chose another day.
  bool Take(const NMHDR& NoteA);
  /// The room it needs.
  SIZE Measure() const;

 private:
  HWND Window() const { return mControls.Window(mId); }

  DialogControls& mControls;
  int mId;
  Date mValue;
  double mShownDay = 0;
};

}  // namespace mur::win32
