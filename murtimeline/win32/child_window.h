#pragma once

#include <functional>
#include <optional>

#include <murtimeline/win32/gdi_surface.h>
#include <murtimeline/win32/hosted_child.h>
#include <murtimeline/win32/paint_buffer.h>
#include <murtimeline/win32/pointer_router.h>
#include <murtimeline/win32/tool_tip.h>
#include <murtimeline/win32/window.h>

namespace mur::win32 {

/// What a child window shows, and who hears of what happens to it.
struct ChildRole {
  std::function<void(Surface& SurfaceA, const RectF& DirtyA)> paint;
  PointerTarget* pointer = nullptr;  ///< it keeps itself while it is told something
  std::function<HoverText(PointF PointA)> hover;
  /// Hears of all messages first; a result ends their way here.
  std::function<std::optional<LRESULT>(const Message& MessageA)> messages;
  /// A mouse button goes down.
  std::function<void()> pressed;
};

/// The window of one companion: it paints what is asked for at once, hands on what the mouse does and shows
/// tool tips for what lies under the pointer.
class ChildWindow final : public Window {
 public:
  /// All of them outlive the window.
  ChildWindow(HINSTANCE ModuleA, WindowOwner& OwnerA, HostedChild& HostA, GdiTools& ToolsA)
      : Window(ModuleA, OwnerA), mHost(HostA), mTools(ToolsA) {}

  void SetRole(ChildRole RoleA);
  /// False while windows of its parent are refused.
  bool CreateIn(HWND ParentA);
  /// At design time the mouse does nothing.
  void SetTakesPointer(bool TakesA);
  void SetRightToLeft(bool IsA) { mIsRightToLeft = IsA; }
  /// Ends what the pointer is doing, without a click.
  void LosePointer() {
    if (mPointer) mPointer->LosePointer();
  }
  /// Draws a part of it (device pixels) onto a device, on which the window's left top corner lies at a place.
  void Draw(HDC DeviceA, const DevicePlace& PlaceA, const RECT& PartA) const;

 private:
  LRESULT Answer(const Message& MessageA) override;
  bool HandlePointer(const Message& MessageA);
  void FollowToolTip(const Message& MessageA);
  void Paint();

  HostedChild& mHost;
  GdiTools& mTools;
  ChildRole mRole;
  std::optional<PointerRouter> mPointer;
  PaintBuffer mBuffer;
  ToolTip mToolTip;
  bool mTakesPointer = true;
  bool mIsRightToLeft = false;
};

}  // namespace mur::win32
