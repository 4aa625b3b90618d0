#include <algorithm>

#include <murtimeline/automation/error.h>
#include <murtimeline/win32/dialogs/dialog_controls.h>
#include <murtimeline/win32/gdi_fonts.h>

namespace mur::win32 {
namespace {

bool IsButton(HWND WindowA) {
  return (SendMessageW(WindowA, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
}

// A button takes one ampersand for the mark of a mnemonic.
String WithoutMnemonics(StringView TextA) {
  String text;
  for (const char16_t unit : TextA) text.append(unit == u'&' ? 2 : 1, unit);
  return text;
}

}  // namespace

HWND DialogControls::Add(int IdA, const ControlKind& KindA, StringView TextA) {
  const HWND control =
      CreateWindowExW(KindA.extendedStyle, KindA.className, L"", KindA.style | WS_CHILD | WS_VISIBLE, 0, 0, 0,
                      0, mDialog, reinterpret_cast<HMENU>(static_cast<INT_PTR>(IdA)), nullptr, nullptr);
  if (!control) throw AutomationError(ErrorCode::ObjectNotSet);
  SetText(IdA, TextA);
  return control;
}

void DialogControls::Forward(UINT MessageA, WPARAM WordA, LPARAM LongA) const {
  for (const auto& [id, text] : mTexts) SendMessageW(Window(id), MessageA, WordA, LongA);
}

const String& DialogControls::Text(int IdA) const {
  return mTexts.at(IdA);
}

void DialogControls::SetText(int IdA, StringView TextA) {
  String& text = mTexts[IdA];
  text = TextA;
  const HWND control = Window(IdA);
  SetWindowTextW(control, ToWide(IsButton(control) ? WithoutMnemonics(text) : text));
}

void DialogControls::SetScale(double ScaleA, int TitleIdA) {
  const auto before = std::exchange(mFonts, std::make_unique<DialogFonts>(ScaleA));
  mScale = ScaleA;
  for (const auto& [id, text] : mTexts) {
    const HFONT font = id == TitleIdA ? mFonts->Title() : mFonts->Text();
    SendMessageW(Window(id), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  }
}

SIZE DialogControls::Measure(int IdA, StringView TextA, int WidthA) const {
  const HWND control = Window(IdA);
  const HDC device = GetDC(control);
  RECT place{0, 0, WidthA, 0};
  {
    const Selected font(device, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    const UINT wrapping = WidthA > 0 ? DT_WORDBREAK : 0;
    const auto count = static_cast<int>(std::min(TextA.size(), kMostTextUnits));
    DrawTextW(device, ToWide(TextA), count, &place, DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS | wrapping);
  }
  ReleaseDC(control, device);
  return {place.right, place.bottom};
}

int DialogControls::FieldHeight(int IdA) const {
  constexpr int kAir = 4, kFrame = 4;  // frames have the same width at every scale
  return LineHeight(IdA) + Scaled(kAir) + kFrame;
}

SIZE DialogControls::ButtonSize(int IdA) const {
  constexpr int kAirBeside = 24, kAirAbove = 10, kNarrowest = 75;
  const int needed = static_cast<int>(MeasureText(IdA).cx) + Scaled(kAirBeside);
  return {std::max(needed, Scaled(kNarrowest)), LineHeight(IdA) + Scaled(kAirAbove)};
}

void DialogControls::Place(int IdA, int LeftA, int TopA, SIZE SizeA) const {
  SetWindowPos(Window(IdA), nullptr, LeftA, TopA, static_cast<int>(SizeA.cx), static_cast<int>(SizeA.cy),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace mur::win32
