#include <algorithm>

#include <murtimeline/win32/dialogs/dialog_window.h>

namespace mur::win32 {
namespace {

using namespace dialog_id;

constexpr int kMargin = 16, kGap = 8, kIconExtent = 40;  // logical pixels
constexpr int kWidestText = 480;                         // of the header before it wraps

int WidthOf(const RECT& PlaceA) {
  return static_cast<int>(PlaceA.right - PlaceA.left);
}

int HeightOf(const RECT& PlaceA) {
  return static_cast<int>(PlaceA.bottom - PlaceA.top);
}

RECT WorkAreaAt(HWND OwnerA) {
  const HMONITOR monitor = OwnerA ? MonitorFromWindow(OwnerA, MONITOR_DEFAULTTONEAREST)
                                  : MonitorFromPoint(POINT{0, 0}, MONITOR_DEFAULTTOPRIMARY);
  MONITORINFO info{};
  info.cbSize = sizeof info;
  GetMonitorInfoW(monitor, &info);
  return info.rcWork;
}

// Where a window of this extent lies over another one, or over the screen, and is seen whole if it can be.
POINT CentredPlace(const RECT& OverA, const RECT& WorkAreaA, int WidthA, int HeightA) {
  const auto along = [](LONG from, LONG to, LONG low, LONG high, int extent) {
    const LONG centred = from + (to - from - extent) / 2;
    return std::max(low, std::min(centred, high - extent));
  };
  return {along(OverA.left, OverA.right, WorkAreaA.left, WorkAreaA.right, WidthA),
          along(OverA.top, OverA.bottom, WorkAreaA.top, WorkAreaA.bottom, HeightA)};
}

}  // namespace

bool DialogWindow::IsSystemVisible(int IndexA) const {
  return (GetWindowLongPtrW(mControls.Window(kSystem + IndexA), GWL_STYLE) & WS_VISIBLE) != 0;
}

SIZE DialogWindow::MeasureSystem() const {
  SIZE row{0, 0};
  for (int index = 1; index <= kSystemButtons; ++index) {
    if (!IsSystemVisible(index)) continue;
    const SIZE button = mControls.ButtonSize(kSystem + index);
    if (row.cx > 0) row.cx += mControls.Scaled(kGap);
    row.cx += button.cx;
    row.cy = std::max(row.cy, button.cy);
  }
  return row;
}

// In the platform's order, "OK" before "Cancel", which is the reverse of their numbers; the third comes last.
void DialogWindow::PlaceSystem(int RightA, int TopA) {
  int right = RightA;
  for (const int index : {3, 1, 2}) {
    if (!IsSystemVisible(index)) continue;
    const SIZE button = mControls.ButtonSize(kSystem + index);
    mControls.Place(kSystem + index, right - static_cast<int>(button.cx), TopA, button);
    right -= static_cast<int>(button.cx) + mControls.Scaled(kGap);
  }
}

int DialogWindow::HeaderTextLeft() const {
  return mControls.Scaled(2 * kMargin + kIconExtent);
}

// Of a header whose texts may be so wide.
int DialogWindow::PlaceHeader(int WidthA) {
  const int left = HeaderTextLeft(), top = mControls.Scaled(kMargin);
  const int textWidth = WidthA - left - mControls.Scaled(kMargin);
  const auto placeText = [&](int id, int at) {
    const auto height = static_cast<int>(mControls.MeasureText(id, textWidth).cy);
    mControls.Place(id, left, at, {textWidth, height});
    return at + height;
  };
  const int commentaryTop = placeText(kTitle, top) + mControls.Scaled(kGap / 2);
  const int textBottom = placeText(kCommentary, commentaryTop);
  const int extent = mControls.Scaled(kIconExtent);
  mControls.Place(kIcon, top, top, {extent, extent});
  const int height = std::max(textBottom, top + extent) + top;
  mControls.Place(kHeader, 0, 0, {WidthA, height});
  return height;
}

int DialogWindow::NeededWidth(SIZE FieldsA) const {
  const int margin = mControls.Scaled(kMargin), widest = mControls.Scaled(kWidestText);
  const auto textWidth = [&](int id) {
    return std::min(static_cast<int>(mControls.MeasureText(id).cx), widest);
  };
  const int header = HeaderTextLeft() + std::max(textWidth(kTitle), textWidth(kCommentary)) + margin;
  const int below = static_cast<int>(std::max(FieldsA.cx, MeasureSystem().cx)) + 2 * margin;
  return std::max(header, below);
}

// A window that shrank with a text under the user's hand would be a nuisance: it only grows.
void DialogWindow::LayOut() {
  const SIZE fields = MeasureFields();
  const int margin = mControls.Scaled(kMargin);
  mWidth = std::max(mWidth, NeededWidth(fields));
  const int panelTop = PlaceHeader(mWidth);
  const int panelHeight = static_cast<int>(fields.cy) + 2 * margin;
  mControls.Place(kFieldPanel, 0, panelTop, {mWidth, panelHeight});
  PlaceFields({margin, panelTop + margin, mWidth - margin, panelTop + panelHeight - margin});
  const int buttonsTop = panelTop + panelHeight;
  PlaceSystem(mWidth - margin, buttonsTop);
  ResizeClient({mWidth, buttonsTop + static_cast<int>(MeasureSystem().cy) + margin});
}

// The frame is what lies between the two rectangles; a resolution that has just changed shows in the second
// pass.
void DialogWindow::ResizeClient(SIZE SizeA) {
  for (int pass = 0; pass < 2; ++pass) {
    RECT window{}, client{};
    GetWindowRect(mHandle, &window);
    GetClientRect(mHandle, &client);
    if (client.right == SizeA.cx && client.bottom == SizeA.cy) return;
    const int width = WidthOf(window) - WidthOf(client) + static_cast<int>(SizeA.cx);
    const int height = HeightOf(window) - HeightOf(client) + static_cast<int>(SizeA.cy);
    SetWindowPos(mHandle, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

void DialogWindow::Centre() {
  const HWND owner = GetWindow(mHandle, GW_OWNER);
  const RECT workArea = WorkAreaAt(owner);
  RECT window{}, over = workArea;
  GetWindowRect(mHandle, &window);
  if (owner && IsWindowVisible(owner) && !IsIconic(owner)) GetWindowRect(owner, &over);
  MoveTo(CentredPlace(over, workArea, WidthOf(window), HeightOf(window)));
}

void DialogWindow::MoveTo(POINT PlaceA) {
  SetWindowPos(mHandle, nullptr, static_cast<int>(PlaceA.x), static_cast<int>(PlaceA.y), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogWindow::SetScale(double ScaleA) {
  mControls.SetScale(ScaleA, kTitle);
  mBoxIcon = mIcon.Sized(mControls.Scaled(kIconExtent));
  mWidth = 0;
  LayOut();
  RedrawWindow(mHandle, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// The place is the one that the system suggests; the size is our own.
void DialogWindow::OnResolution(UINT DpiA, const RECT& PlaceA) {
  MoveTo({PlaceA.left, PlaceA.top});
  SetScale(static_cast<double>(DpiA) / USER_DEFAULT_SCREEN_DPI);
}

// The header stands out from the panel like a page.
INT_PTR DialogWindow::OnColor(HDC DeviceA, HWND ControlA) const {
  const int id = GetDlgCtrlID(ControlA);
  if (id != kTitle && id != kCommentary && id != kHeader) return FALSE;
  SetTextColor(DeviceA, GetSysColor(COLOR_WINDOWTEXT));
  SetBkColor(DeviceA, GetSysColor(COLOR_WINDOW));
  return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
}

void DialogWindow::DrawIconBox(const DRAWITEMSTRUCT& DrawingA) const {
  const RECT& place = DrawingA.rcItem;
  FillRect(DrawingA.hDC, &place, GetSysColorBrush(COLOR_WINDOW));
  DrawIconEx(DrawingA.hDC, static_cast<int>(place.left), static_cast<int>(place.top), mBoxIcon.Get(),
             WidthOf(place), HeightOf(place), 0, nullptr, DI_NORMAL);
}

}  // namespace mur::win32
