#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/automation/string.h>
#include <murtimeline/win32/platform.h>

namespace mur::test {

/// A user who does one thing after the other at the dialog that is in front, whenever all messages before
/// were dealt with. What is left undone is a failure, and so is a window that is left open.
class DialogUser {
 public:
  using Deed = std::function<void(HWND WindowA)>;

  DialogUser();
  ~DialogUser();
  DialogUser(const DialogUser&) = delete;
  DialogUser& operator=(const DialogUser&) = delete;

  DialogUser& Do(Deed DeedA);
  /// Keys, as they come to the window that has the keyboard.
  DialogUser& Type(std::initializer_list<int> KeysA);
  DialogUser& TypeShifted(int KeyA);
  /// A click near the left edge of a control: in a picker of the time, on the hours.
  DialogUser& Click(int IdA);
  /// The close box.
  DialogUser& Close();

 private:
  static void CALLBACK Tick(HWND WindowA, UINT MessageA, UINT_PTR TimerA, DWORD TimeA);
  void DoNext();

  std::vector<Deed> mDeeds;
  std::size_t mNext = 0;
  int mIdleTicks = 0;
  UINT_PTR mTimer;
};

/// The dialog of this thread that can be used, a message box included; none if there is none.
HWND FrontDialog();

/// What is written on a control, in UTF-8.
std::string TextOf(HWND WindowA, int IdA);
/// The time of day that a picker shows, "06:00:00".
std::string TimeIn(HWND WindowA, int IdA);
/// The day that a calendar shows, "2000-01-01".
std::string DayIn(HWND WindowA, int IdA);
bool IsVisible(HWND WindowA, int IdA);
/// The number of the control that has the keyboard.
int FocusId();

/// A window of its own, visible, on which dialogs can stand.
class OwnerWindow {
 public:
  OwnerWindow();
  ~OwnerWindow() { Destroy(); }
  OwnerWindow(const OwnerWindow&) = delete;
  OwnerWindow& operator=(const OwnerWindow&) = delete;

  HWND Root() const { return mRoot; }
  /// A control in it.
  HWND Child() const { return mChild; }
  void Destroy();

 private:
  HWND mRoot;
  HWND mChild;
};

}  // namespace mur::test
