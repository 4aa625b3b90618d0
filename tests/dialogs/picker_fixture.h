#pragma once

#include <murtimeline/dialogs/date_time_picker.h>

#include "tests/dialogs/dialog_fixture.h"

namespace mur::test {

inline const Date kMorning = DateOf(2000, 1, 1, 6);

/// A date-time picker on recording forms.
struct Picker : RecordingForms {
  FDateTimePicker* operator->() const { return dialog.Get(); }

  /// Shows the dialog to a user who does this.
  void Show(const ScriptedForms::DateTimeScript& ScriptA) {
    forms.SetDateTimeScript(ScriptA);
    dialog->Show();
  }

  Ref<FDateTimePicker> dialog = Make<FDateTimePicker>(forms);
};

}  // namespace mur::test
