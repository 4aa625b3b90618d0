#pragma once

#include <cmath>
#include <map>
#include <memory>

#include <murtimeline/automation/string.h>
#include <murtimeline/win32/dialogs/dialog_fonts.h>

namespace mur::win32 {

/// What a control in a dialog is made as.
struct ControlKind {
  const wchar_t* className;
  DWORD style = 0;
  DWORD extendedStyle = 0;
};

inline constexpr ControlKind kLabel{WC_STATICW, SS_NOPREFIX};
inline constexpr ControlKind kButton{WC_BUTTONW, BS_PUSHBUTTON | WS_TABSTOP};
inline constexpr ControlKind kReadOnlyText{WC_EDITW, ES_READONLY | ES_AUTOHSCROLL | WS_TABSTOP,
                                           WS_EX_CLIENTEDGE};
/// Lies behind the controls that are added before it.
inline constexpr ControlKind kPanel{WC_STATICW, SS_NOPREFIX | WS_CLIPSIBLINGS};

/// The controls in a dialog, by their numbers. Tab goes through them in the order in which they are added.
class DialogControls {
 public:
  /// `DialogA` outlives its controls.
  explicit DialogControls(HWND DialogA) : mDialog(DialogA) {}

  HWND Add(int IdA, const ControlKind& KindA, StringView TextA = {});
  HWND Window(int IdA) const { return GetDlgItem(mDialog, IdA); }

  /// Hands a message on to all of them.
  void Forward(UINT MessageA, WPARAM WordA, LPARAM LongA) const;

  /// What was written, which the control itself need not be able to hold.
  const String& Text(int IdA) const;
  void SetText(int IdA, StringView TextA);

  /// Gives all controls their fonts. The title's is for `TitleIdA`.
  void SetScale(double ScaleA, int TitleIdA);
  /// Logical pixels in device pixels.
  int Scaled(int PixelsA) const { return static_cast<int>(std::lround(PixelsA * mScale)); }

  /// The room that a text takes in the font of a control, wrapped at a width in device pixels unless that is
  /// 0.
  SIZE Measure(int IdA, StringView TextA, int WidthA = 0) const;
  SIZE MeasureText(int IdA, int WidthA = 0) const { return Measure(IdA, Text(IdA), WidthA); }
  /// The height of a text field.
  int FieldHeight(int IdA) const;
  SIZE ButtonSize(int IdA) const;
  void Place(int IdA, int LeftA, int TopA, SIZE SizeA) const;

 private:
  int LineHeight(int IdA) const { return static_cast<int>(Measure(IdA, u"X").cy); }

  HWND mDialog;
  std::map<int, String> mTexts;
  std::unique_ptr<DialogFonts> mFonts;
  double mScale = 1;
};

}  // namespace mur::win32
