#pragma once

#include <murtimeline/dialogs/dialog_form.h>
#include <murtimeline/win32/dialogs/dialog_controls.h>
#include <murtimeline/win32/dialogs/modal_loop.h>
#include <murtimeline/win32/dialogs/window_icon.h>
#include <murtimeline/win32/window_forms.h>

namespace mur::win32 {

/// The numbers of the controls that every dialog has; those of its fields start at kFirstField.
namespace dialog_id {
inline constexpr int kTitle = 101, kCommentary = 102, kIcon = 103;
inline constexpr int kHeader = 104;      ///< the panel behind these (`picCanvas`)
inline constexpr int kFieldPanel = 105;  ///< behind the fields (`Picture2`)
inline constexpr int kSystem = 110;      ///< and the index of the button
inline constexpr int kFirstField = 200;
}  // namespace dialog_id

/// The window of a dialog: a header with icon, title and commentary, a panel for fields, and three buttons.
/// It is made at once and shown by ShowModal; it goes with the window that it stands upon, after which all
/// calls throw ObjectNotSet.
class DialogWindow : public IDialogWindow {
 public:
  ~DialogWindow() override;
  DialogWindow(const DialogWindow&) = delete;
  DialogWindow& operator=(const DialogWindow&) = delete;

  /// None once it has gone.
  HWND Handle() const { return mHandle; }

  String Title() const override;
  void SetTitle(StringView TextA) override;
  String Commentary() const override;
  void SetCommentary(StringView TextA) override;
  String SystemCaption(int IndexA) const override;
  void SetSystemCaption(int IndexA, StringView TextA) override;
  void SetSystemVisible(int IndexA, bool VisibleA) override;
  void SetSystemDefault(int IndexA) override;
  void SetSystemCancel(int IndexA) override;
  void ShowModal() override;
  bool IsShown() const override { return mLoop != nullptr; }
  void Unload() override;
  void BringToFront() override;
  void ShowMessage(StringView TextA, StringView TitleA) override;
  DialogForms& Forms() override { return mForms; }

 protected:
  /// `OwnerA` is the window to stand upon, if any.
  DialogWindow(HINSTANCE ModuleA, HWND OwnerA);
  /// To be called when the fields were added: adds what is common and lays all of it out.
  void Complete();

  DialogControls& Controls() { return mControls; }
  const DialogControls& Controls() const { return mControls; }
  /// Throws ObjectNotSet when the window has gone, as these do.
  void RequireWindow() const;
  const String& TextOf(int IdA) const;
  /// Makes room for the text, too.
  void ShowText(int IdA, StringView TextA);

 private:
  /// The room that the fields need, in device pixels.
  virtual SIZE MeasureFields() const = 0;
  virtual void PlaceFields(const RECT& PlaceA) = 0;
  /// The field that the keyboard goes to first.
  virtual int FirstField() const = 0;
  virtual void OnButton(int IdA) = 0;
  virtual void OnNotify(const NMHDR& NoteA) = 0;

  static INT_PTR CALLBACK Procedure(HWND WindowA, UINT MessageA, WPARAM WordA, LPARAM LongA);
  INT_PTR OnMessage(UINT MessageA, WPARAM WordA, LPARAM LongA);
  void OnCommand(int IdA);
  INT_PTR OnColor(HDC DeviceA, HWND ControlA) const;
  void OnResolution(UINT DpiA, const RECT& PlaceA);
  void DrawIconBox(const DRAWITEMSTRUCT& DrawingA) const;
  void PressSystem(int IdA);
  void Close(UnloadRequest RequestA);
  void Leave();
  void EndLoop() noexcept;

  // Layout
  bool IsSystemVisible(int IndexA) const;
  SIZE MeasureSystem() const;
  int NeededWidth(SIZE FieldsA) const;
  int HeaderTextLeft() const;
  int PlaceHeader(int WidthA);
  void PlaceSystem(int RightA, int TopA);
  void SetScale(double ScaleA);
  void LayOut();
  void ResizeClient(SIZE SizeA);
  void MoveTo(POINT PlaceA);
  void Centre();

  HWND mHandle;
  DialogControls mControls;
  WindowForms mForms;
  WindowIcon mIcon;
  UniqueIcon mBoxIcon;         // in the header
  ModalLoop* mLoop = nullptr;  // while it is shown
  int mCancelId = 0;
  int mWidth = 0;  // of the client area; grows with the texts
};

}  // namespace mur::win32
