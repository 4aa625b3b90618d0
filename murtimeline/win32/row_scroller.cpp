#include <algorithm>
#include <cmath>

#include <murtimeline/win32/dpi.h>
#include <murtimeline/win32/row_scroller.h>

namespace mur::win32 {
namespace {

constexpr float kLineHeight = 20;  // pixels
constexpr float kHighest = 1e9F;   // pixels that a scroll bar can count

int Whole(float PixelsA) {
  return static_cast<int>(std::ceil(std::clamp(PixelsA, 0.0F, kHighest)));
}

UINT LinesANotch() {
  UINT lines = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  return lines;
}

}  // namespace

// What a canvas is told may end the window. The scroll bar is of the platform's own class; what the user does
// to it comes back as messages to the canvas's window.
void RowScroller::Follow(const Window& WindowA) {
  if (mCanvas) ScrollTo(mCanvas->ScrollTop());
  if (!mCanvas || !WindowA.Exists()) return;
  if (!CanScroll()) {
    if (mBar) DestroyWindow(std::exchange(mBar, nullptr));
    return;
  }
  RECT area{};
  GetClientRect(WindowA.Handle(), &area);
  const int width = ScrollBarWidthOf(WindowA.Handle());
  if (!mBar)
    mBar = CreateWindowExW(0, L"SCROLLBAR", L"", WS_CHILD | WS_VISIBLE | SBS_VERT, 0, 0, 0, 0,
                           WindowA.Handle(), nullptr, WindowA.Module(), nullptr);
  SetWindowPos(mBar, HWND_TOP, static_cast<int>(area.right) - width, 0, width, static_cast<int>(area.bottom),
               SWP_NOACTIVATE);
  SCROLLINFO info{sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE | SIF_POS, 0, 0, 0, 0, 0};
  info.nMax = std::max(Whole(mCanvas->ContentHeight()) - 1, 0);
  info.nPage = static_cast<UINT>(std::max(static_cast<int>(PageHeight()), 1));
  info.nPos = Whole(mCanvas->ScrollTop());
  SetScrollInfo(mBar, SB_CTL, &info, TRUE);
}

bool RowScroller::CanScroll() const {
  return mCanvas->ContentHeight() > PageHeight();
}

bool RowScroller::Handle(const Message& MessageA) {
  const bool isOurs = MessageA.id == WM_VSCROLL || MessageA.id == WM_MOUSEWHEEL;
  if (!isOurs || !mCanvas || !CanScroll()) return false;
  if (MessageA.id == WM_VSCROLL)
    HandleBar(LOWORD(MessageA.word));
  else
    HandleWheel(MessageA);
  return true;
}

void RowScroller::HandleBar(WORD CodeA) {
  switch (CodeA) {
    case SB_LINEUP:
      return ScrollTo(mCanvas->ScrollTop() - kLineHeight);
    case SB_LINEDOWN:
      return ScrollTo(mCanvas->ScrollTop() + kLineHeight);
    case SB_PAGEUP:
      return ScrollByPages(-1);
    case SB_PAGEDOWN:
      return ScrollByPages(1);
    case SB_TOP:
      return ScrollTo(0);
    case SB_BOTTOM:
      return ScrollTo(mCanvas->ContentHeight());
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: {
      SCROLLINFO info{sizeof(SCROLLINFO), SIF_TRACKPOS, 0, 0, 0, 0, 0};
      GetScrollInfo(mBar, SB_CTL, &info);
      return ScrollTo(static_cast<float>(info.nTrackPos));
    }
    default:
      return;
  }
}

// By as many lines as the user chose, parts of a notch included.
void RowScroller::HandleWheel(const Message& MessageA) {
  const float notches = static_cast<float>(GET_WHEEL_DELTA_WPARAM(MessageA.word)) / WHEEL_DELTA;
  const UINT lines = LinesANotch();
  if (lines == WHEEL_PAGESCROLL) return ScrollByPages(-notches);
  ScrollTo(mCanvas->ScrollTop() - notches * static_cast<float>(lines) * kLineHeight);
}

void RowScroller::ScrollTo(float TopA) {
  Ref(mCanvas)->SetScrollTop(TopA);
}

bool RowScroller::TurnPage(bool DownwardsA) {
  if (!mCanvas || !CanScroll()) return false;
  ScrollByPages(DownwardsA ? 1.0F : -1.0F);
  return true;
}

void RowScroller::ScrollByPages(float PagesA) {
  ScrollTo(mCanvas->ScrollTop() + PagesA * PageHeight());
}

void RowScroller::Reveal(const ICanvasItem& BarA) {
  const RectF bounds = mCanvas->PixelBounds(BarA);
  const float below = bounds.Bottom() - PageHeight();
  const float by = std::min(std::max(below, 0.0F), bounds.top);
  if (by != 0) ScrollTo(mCanvas->ScrollTop() + by);
}

}  // namespace mur::win32
