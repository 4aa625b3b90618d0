#include <algorithm>
#include <cmath>
#include <utility>

#include <murtimeline/win32/tool_tip.h>

namespace mur::win32 {
namespace {

constexpr LPARAM kWidest = 600;         // device pixels; longer texts are broken into lines
constexpr std::size_t kLongest = 2000;  // units

RECT AreaOf(const Window& WindowA, const RectF& AreaA, double ScaleA) {
  RECT all{};
  GetClientRect(WindowA.Handle(), &all);
  if (AreaA.IsEmpty()) return all;
  const auto edge = [&](float pixel, LONG last) {
    const double device = std::round(static_cast<double>(pixel) * ScaleA);
    return static_cast<LONG>(std::clamp(device, 0.0, static_cast<double>(last)));
  };
  return {edge(AreaA.left, all.right), edge(AreaA.top, all.bottom), edge(AreaA.Right(), all.right),
          edge(AreaA.Bottom(), all.bottom)};
}

TOOLINFOW InfoFor(const Window& WindowA) {
  TOOLINFOW info{};
  info.cbSize = TTTOOLINFOW_V2_SIZE;  // what all versions of the common controls know
  info.hwnd = WindowA.Handle();
  info.uId = 1;
  return info;
}

// As the platform wants it: ended by a null, with none before.
std::wstring Shown(StringView TextA) {
  std::wstring text(TextA.substr(0, kLongest).begin(), TextA.substr(0, kLongest).end());
  std::replace(text.begin(), text.end(), L'\0', L' ');
  return text;
}

}  // namespace

void ToolTip::Follow(const Window& WindowA, const Message& MessageA, const HoverText& HoverA, double ScaleA) {
  if (!mTip && HoverA.text.empty()) return;
  if (!mTip) Open(WindowA);
  const RECT area = AreaOf(WindowA, HoverA.area, ScaleA);
  if (mText != HoverA.text || !EqualRect(&mArea, &area)) {
    mText = HoverA.text;
    mArea = area;
    Show(WindowA, area);
  }
  MSG relayed{WindowA.Handle(), MessageA.id, MessageA.word, MessageA.data, 0, {}};
  if (!mText.empty()) SendMessageW(mTip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void ToolTip::Open(const Window& WindowA) {
  INITCOMMONCONTROLSEX wanted{sizeof(INITCOMMONCONTROLSEX), ICC_BAR_CLASSES};
  InitCommonControlsEx(&wanted);
  mTip = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"", WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                         CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, WindowA.Handle(),
                         nullptr, WindowA.Module(), nullptr);
  SendMessageW(mTip, TTM_SETMAXTIPWIDTH, 0, kWidest);
}

void ToolTip::Show(const Window& WindowA, const RECT& AreaA) {
  TOOLINFOW info = InfoFor(WindowA);
  SendMessageW(mTip, TTM_POP, 0, 0);
  SendMessageW(mTip, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&info));
  if (mText.empty()) return;
  std::wstring text = Shown(mText);
  info.rect = AreaA;
  info.lpszText = text.data();
  SendMessageW(mTip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
}

// The platform destroys it with its owner; a second time does no harm.
void ToolTip::Close() {
  const HWND tip = std::exchange(mTip, nullptr);
  mText.clear();
  if (tip && IsWindow(tip)) DestroyWindow(tip);
}

}  // namespace mur::win32
