#pragma once

#include <vector>

#include <murtimeline/automation/event.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/dialogs/dialog_form.h>

namespace mur {

/// What the dialogs have in common: title and commentary, and buttons whose captions say what they do.
///
/// A dialog is for one showing. No member raises an error: a step that fails in the form is skipped.
class MUR_API Dialog : public Object {
 public:
  /// False once the user chose "OK".
  bool Cancelled() const { return mCancelled; }
  String Title() const;
  void SetTitle(StringView TitleA);
  String Commentary() const;
  void SetCommentary(StringView CommentaryA);
  /// The topic that "Help" would show; it is stored only.
  String HelpTag() const { return mHelpTag; }
  void SetHelpTag(StringView HelpTagA);

  /// Shows the dialog modally and returns when it was closed. A dialog that is open already comes to the
  /// front instead. One whose window went without being closed counts as cancelled.
  void Show();
  /// Nothing while the dialog is not open.
  void BringToFront();

 protected:
  /// `WindowA` lives as long as the dialog.
  explicit Dialog(IDialogWindow& WindowA);

  /// Calls `DeedA` at each `EventA`, with the dialog kept alive whatever it does.
  template <class... Arguments, class Deed>
  void Listen(Event<Arguments...>& EventA, Deed DeedA) {
    mConnections.push_back(EventA.Connect([this, DeedA](Arguments... arguments) {
      const Ref<Dialog> keep(this);
      DeedA(arguments...);
    }));
  }

 private:
  virtual void QueryUnload(UnloadRequest RequestA, bool& CancelA);
  virtual void Unloading();

  void SystemClick(int IndexA);
  void Unload();

  IDialogWindow& mWindow;
  std::vector<Connection> mConnections;
  String mHelpTag;
  bool mCancelled = true;
  bool mIsOpen = false;
  bool mWasUnloaded = false;
};

}  // namespace mur
