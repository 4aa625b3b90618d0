#pragma once

#include <memory>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/event.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>

namespace mur {

class DialogForms;

/// Who asks that a window closes: the user by its close box, or the program.
enum class UnloadRequest { ByUser, ByProgram };

/// What a face supplies for the window that every dialog stands in: a title, a commentary below it, the
/// window's icon, and three generic buttons numbered from 1 (`bSystem`), which start visible and without a
/// caption.
///
/// A call may fail by throwing: dialogs go on with their next step. Writes by the program raise no event. The
/// window belongs to its dialog and lives while that one is shown, but what is on the screen may go at any
/// time; calls fail then, and ShowModal returns.
class MUR_API IDialogWindow {
 public:
  static constexpr int kSystemButtons = 3;

  virtual ~IDialogWindow() = default;

  /// One of the three buttons was pressed.
  Event<int /*IndexA*/> SystemClick;
  /// The window is about to close; a listener may refuse.
  Event<UnloadRequest, bool& /*CancelA*/> QueryUnload;
  /// It closes; the fields can be read for the last time.
  Event<> Unloading;

  virtual String Title() const = 0;
  virtual void SetTitle(StringView TextA) = 0;
  virtual String Commentary() const = 0;
  virtual void SetCommentary(StringView TextA) = 0;

  virtual String SystemCaption(int IndexA) const = 0;
  virtual void SetSystemCaption(int IndexA, StringView TextA) = 0;
  virtual void SetSystemVisible(int IndexA, bool VisibleA) = 0;
  /// The button that Enter presses.
  virtual void SetSystemDefault(int IndexA) = 0;
  /// The button that Esc presses.
  virtual void SetSystemCancel(int IndexA) = 0;

  /// Shows the window before all others and returns when it has gone.
  virtual void ShowModal() = 0;
  virtual bool IsShown() const = 0;
  /// Closes the window in the program's name, unless that is refused. Nothing while it is not shown.
  virtual void Unload() = 0;
  virtual void BringToFront() = 0;
  /// A message box with an OK button alone; returns when it was dismissed.
  virtual void ShowMessage(StringView TextA, StringView TitleA) = 0;

  /// What dialogs that open upon this window are made of.
  virtual DialogForms& Forms() = 0;

 protected:
  /// The way of every unload, for the face: asks, then tells. True when the window is to go now. Nothing
  /// while it is not shown or another request is being answered, or when it went meanwhile.
  bool PassUnload(UnloadRequest RequestA);

 private:
  bool mIsPassing = false;
};

/// What a face supplies for the edit-times dialog.
class MUR_API IEditTimesForm {
 public:
  virtual ~IEditTimesForm() = default;

  /// A "Change" button was pressed: 1 beside the start, 2 beside the end (`bChange`).
  Event<int /*IndexA*/> ChangeClick;
  /// The user changed the duration.
  Event<> DurationChange;

  virtual IDialogWindow& Window() = 0;
  /// The text box of the start (`txtWorldTimeT0`), for display alone.
  virtual String StartText() const = 0;
  virtual void SetStartText(StringView TextA) = 0;
  /// The text box of the end (`txtWorldTimeT1`), for display alone.
  virtual String EndText() const = 0;
  virtual void SetEndText(StringView TextA) = 0;
  /// The picker of the duration (`dtpDuration`). It shows the time of day and edits that alone; the days of a
  /// longer duration stay.
  virtual Date DurationValue() const = 0;
  virtual void SetDurationValue(Date ValueA) = 0;
};

/// What a face supplies for the date-time picker.
class MUR_API IDateTimeForm {
 public:
  virtual ~IDateTimeForm() = default;

  /// The user changed the day.
  Event<> DateChange;
  /// The user changed the time of day.
  Event<> TimeChange;

  virtual IDialogWindow& Window() = 0;
  /// The month calendar (`mnvTheDate`); its time of day means nothing.
  virtual Date DateValue() const = 0;
  virtual void SetDateValue(Date ValueA) = 0;
  /// The picker of the time of day (`dtpTheTime`); its day means nothing.
  virtual Date TimeValue() const = 0;
  virtual void SetTimeValue(Date ValueA) = 0;
  /// The label that shows the whole moment (`lblDateTime`).
  virtual String DateTimeText() const = 0;
  virtual void SetDateTimeText(StringView TextA) = 0;
};

/// Makes the forms of a face, one for every dialog.
class MUR_API DialogForms {
 public:
  virtual ~DialogForms() = default;
  virtual std::unique_ptr<IEditTimesForm> MakeEditTimesForm() = 0;
  virtual std::unique_ptr<IDateTimeForm> MakeDateTimeForm() = 0;
};

}  // namespace mur
