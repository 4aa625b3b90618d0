#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <vector>

#include <murtimeline/dialogs/dialog_form.h>

namespace mur {

class ScriptedForms;

/// A window in memory, with what a user can do to it; input to a window that is not shown does nothing.
class MUR_API ScriptedWindow final : public IDialogWindow {
 public:
  /// `FormsA` outlives the window, `ScriptA` is played while it is shown.
  ScriptedWindow(ScriptedForms& FormsA, std::function<void()> ScriptA);

  void Press(int IndexA);
  void PressEnter() { Press(mDefault); }
  void PressEscape() { Press(mCancel); }
  void PressCloseBox();
  /// The window goes without being closed, as when the window that it stands on is destroyed.
  void Vanish() { mIsShown = false; }

  bool IsSystemVisible(int IndexA) const { return mButtons[PlaceOf(IndexA)].visible; }

  String Title() const override;
  void SetTitle(StringView TextA) override;
  String Commentary() const override;
  void SetCommentary(StringView TextA) override;
  String SystemCaption(int IndexA) const override;
  void SetSystemCaption(int IndexA, StringView TextA) override;
  void SetSystemVisible(int IndexA, bool VisibleA) override;
  void SetSystemDefault(int IndexA) override;
  void SetSystemCancel(int IndexA) override;
  /// Plays the script; a window that is still open at its end is closed by its close box.
  void ShowModal() override;
  bool IsShown() const override { return mIsShown; }
  void Unload() override;
  void BringToFront() override;
  void ShowMessage(StringView TextA, StringView TitleA) override;
  DialogForms& Forms() override;

 private:
  struct Button {
    String caption;
    bool visible = true;
  };

  static std::size_t PlaceOf(int IndexA);
  void Close(UnloadRequest RequestA);

  ScriptedForms& mForms;
  std::function<void()> mScript;
  String mTitle, mCommentary;
  std::array<Button, kSystemButtons> mButtons;
  int mDefault = 0, mCancel = 0;
  bool mIsShown = false;
};

/// The form of the edit-times dialog in memory.
class MUR_API ScriptedEditTimesForm final : public IEditTimesForm {
 public:
  explicit ScriptedEditTimesForm(ScriptedForms& FormsA);

  void PressChange(int IndexA);
  void PickDuration(Date ValueA);

  ScriptedWindow& Window() override { return mWindow; }
  String StartText() const override;
  void SetStartText(StringView TextA) override;
  String EndText() const override;
  void SetEndText(StringView TextA) override;
  Date DurationValue() const override;
  void SetDurationValue(Date ValueA) override;

 private:
  ScriptedForms& mForms;
  ScriptedWindow mWindow;
  String mStartText, mEndText;
  Date mDuration;
};

/// The form of the date-time picker in memory.
class MUR_API ScriptedDateTimeForm final : public IDateTimeForm {
 public:
  explicit ScriptedDateTimeForm(ScriptedForms& FormsA);

  void PickDate(Date ValueA);
  void PickTime(Date ValueA);

  ScriptedWindow& Window() override { return mWindow; }
  Date DateValue() const override;
  void SetDateValue(Date ValueA) override;
  Date TimeValue() const override;
  void SetTimeValue(Date ValueA) override;
  String DateTimeText() const override;
  void SetDateTimeText(StringView TextA) override;

 private:
  ScriptedForms& mForms;
  ScriptedWindow mWindow;
  Date mDate, mTime;
  String mDateTimeText;
};

/// Forms for tests and for hosts without a screen: what a user does at them is a script. It outlives its
/// forms.
class MUR_API ScriptedForms final : public DialogForms {
 public:
  using EditTimesScript = std::function<void(ScriptedEditTimesForm& FormA)>;
  using DateTimeScript = std::function<void(ScriptedDateTimeForm& FormA)>;
  using Observer = std::function<void(std::string_view CallA, std::string_view ArgumentsA)>;

  struct Message {
    String text, title;
    friend bool operator==(const Message&, const Message&) = default;
  };

  /// What is done at each edit-times dialog that is shown from now on.
  void SetEditTimesScript(EditTimesScript ScriptA) { mEditTimesScript = std::move(ScriptA); }
  /// What is done at each date-time picker that is shown from now on.
  void SetDateTimeScript(DateTimeScript ScriptA) { mDateTimeScript = std::move(ScriptA); }
  /// Hears of every call that a dialog makes to a form, before it is carried out; when it throws, the call
  /// fails.
  void SetObserver(Observer ObserverA) { mObserver = std::move(ObserverA); }

  /// The message boxes so far. Each is dismissed at once.
  const std::vector<Message>& Messages() const { return mMessages; }

  std::unique_ptr<IEditTimesForm> MakeEditTimesForm() override;
  std::unique_ptr<IDateTimeForm> MakeDateTimeForm() override;

 private:
  friend class ScriptedWindow;
  friend class ScriptedEditTimesForm;
  friend class ScriptedDateTimeForm;

  void Observe(std::string_view CallA, std::string_view ArgumentsA = {}) const;

  EditTimesScript mEditTimesScript;
  DateTimeScript mDateTimeScript;
  Observer mObserver;
  std::vector<Message> mMessages;
};

}  // namespace mur
