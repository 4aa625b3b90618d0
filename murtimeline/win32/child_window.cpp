#include <algorithm>
#include <vector>

#include <murtimeline/win32/child_window.h>

namespace mur::win32 {
namespace {

// More rectangles than this are painted as the one around them.
constexpr DWORD kMostRectangles = 8;

std::vector<RECT> RectanglesOf(HWND WindowA) {
  const UniqueRegion region(CreateRectRgn(0, 0, 0, 0));
  if (GetUpdateRgn(WindowA, region.Get(), FALSE) == NULLREGION) return {};
  const DWORD size = GetRegionData(region.Get(), 0, nullptr);
  std::vector<std::byte> bytes(size);
  auto* data = reinterpret_cast<RGNDATA*>(bytes.data());
  if (size < sizeof(RGNDATAHEADER) || GetRegionData(region.Get(), size, data) == 0) return {};
  if (data->rdh.nCount > kMostRectangles) return {data->rdh.rcBound};
  const auto* first = reinterpret_cast<const RECT*>(data->Buffer);
  return {first, first + data->rdh.nCount};
}

// A pixel more all around, so that a fill covers the edge pixels of a fractional scale factor wholly.
RectF DirtyOf(const RECT& PartA, const DevicePlace& PlaceA) {
  const auto logical = [](LONG device, double scale) {
    return static_cast<float>(static_cast<double>(device) / scale);
  };
  return {logical(PartA.left, PlaceA.x) - 1, logical(PartA.top, PlaceA.y) - 1,
          logical(PartA.right - PartA.left, PlaceA.x) + 2, logical(PartA.bottom - PartA.top, PlaceA.y) + 2};
}

bool IsMouse(UINT IdA) {
  return (IdA >= WM_MOUSEFIRST && IdA <= WM_MOUSELAST) || IdA == WM_MOUSELEAVE;
}

}  // namespace

void ChildWindow::SetRole(ChildRole RoleA) {
  mRole = std::move(RoleA);
  mPointer.emplace(*this, *mRole.pointer);
}

bool ChildWindow::CreateIn(HWND ParentA) {
  if (!Create(ParentA, mHost.DevicePlace(), WS_CLIPSIBLINGS | WS_CLIPCHILDREN)) return false;
  mHost.SetWindow(Handle());
  return true;
}

void ChildWindow::SetTakesPointer(bool TakesA) {
  mTakesPointer = TakesA;
  if (!TakesA) LosePointer();
}

LRESULT ChildWindow::Answer(const Message& MessageA) {
  if (mRole.messages)
    if (const auto result = mRole.messages(MessageA)) return *result;
  if (HandlePointer(MessageA)) return 0;
  switch (MessageA.id) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_PRINTCLIENT: {
      RECT all{};
      GetClientRect(Handle(), &all);
      const double scale = mHost.ScaleFactor();
      Draw(reinterpret_cast<HDC>(MessageA.word), {{0, 0}, scale, scale}, all);
      return 0;
    }
    case WM_ERASEBKGND:
      return TRUE;
    case WM_SETCURSOR:
      if (LOWORD(MessageA.data) != HTCLIENT || reinterpret_cast<HWND>(MessageA.word) != Handle()) break;
      SetCursor(mHost.Pointer());
      return TRUE;
    case WM_DESTROY:
      mToolTip.Close();
      mHost.SetWindow(nullptr);
      break;
    default:
      break;
  }
  return HandleByDefault(MessageA);
}

// At design time the mouse is the container's.
bool ChildWindow::HandlePointer(const Message& MessageA) {
  if (!mPointer) return false;
  if (IsMouse(MessageA.id)) {
    if (!mTakesPointer) return false;
    FollowToolTip(MessageA);
    if (PointerRouter::IsPress(MessageA)) mRole.pressed();
    if (!Exists()) return true;
  }
  return mPointer->Handle(MessageA, mHost.ScaleFactor());
}

void ChildWindow::FollowToolTip(const Message& MessageA) {
  if (MessageA.id == WM_MOUSEWHEEL || MessageA.id == WM_MOUSELEAVE || !mRole.hover) return;
  const double scale = mHost.ScaleFactor();
  const POINT at = MessageA.At();
  const PointF point{static_cast<float>(static_cast<double>(at.x) / scale),
                     static_cast<float>(static_cast<double>(at.y) / scale)};
  mToolTip.Follow(*this, MessageA, mPointer->IsHeld() ? HoverText() : mRole.hover(point), scale);
}

void ChildWindow::Paint() {
  const std::vector<RECT> parts = RectanglesOf(Handle());
  PAINTSTRUCT painting{};
  const HDC device = BeginPaint(Handle(), &painting);
  const double scale = mHost.ScaleFactor();
  for (const RECT& part : parts)
    mBuffer.Paint(device, part, [&](HDC buffer) {
      Draw(buffer, {{-part.left, -part.top}, scale, scale}, part);
    });
  EndPaint(Handle(), &painting);
}

void ChildWindow::Draw(HDC DeviceA, const DevicePlace& PlaceA, const RECT& PartA) const {
  if (!mRole.paint) return;
  GdiSurface surface(DeviceA, PlaceA, mTools);
  surface.SetRightToLeft(mIsRightToLeft);
  mRole.paint(surface, DirtyOf(PartA, PlaceA));
}

}  // namespace mur::win32
