#pragma once

#include <vector>

#include <murtimeline/automation/event.h>
#include <murtimeline/render/bar_keyboard.h>
#include <murtimeline/win32/accessible_bars.h>
#include <murtimeline/win32/child_window.h>
#include <murtimeline/win32/drop_router.h>
#include <murtimeline/win32/frame_window.h>
#include <murtimeline/win32/row_scroller.h>
#include <murtimeline/win32/timeline_window.h>
#include <murtimeline/win32/window_forms.h>

namespace mur::win32 {

class AccessibleTimeline;

/// What a TimelineWindow consists of. It stays while any of its windows handles a message and as long as its
/// companions, which may outlive the window.
struct TimelineWindow::Parts final : WindowOwner {
  explicit Parts(HINSTANCE ModuleA);

  Ref<Object> Subject() const override { return Ref<Object>(control); }

  void Attach(MURTimelineRender& ControlA);
  /// The control and the window go.
  void Close();

  bool CreateWindows(HWND ParentA, const RECT& PlaceA);
  /// Lays the control out for the size.
  void LayOut();
  /// Takes up the factor of the monitor, or the one in place of that.
  void Rescale();
  /// Colours, fonts or the like became others.
  void Restyle();
  void UseAmbience(const Ambience& AmbienceA);
  bool PressKey(WPARAM VirtualKeyA);
  bool HasFocus() const;
  void Draw(HDC DeviceA, const RECT& PlaceA);

  WindowEvents events;
  Ambience ambience;
  GdiTools tools;
  HostedChild scaleHost, canvasHost;
  MURTimelineRender* control = nullptr;  // outlived by this object, not held: it may be what owns all this
  Ref<MURTimelineScroll> scroller;
  Ref<MURGraphicCanvas> canvas;
  Ref<BarKeyboard> keyboard;
  RowScroller rows;
  FrameWindow frame;
  ChildWindow scaleWindow, canvasWindow;
  DropRouter drops;
  std::optional<AccessibleBars> bars;
  WindowForms forms;
  SIZE size{};
  double scale = 1;
  std::optional<double> scaleInstead;
  std::vector<Connection> connections;

 private:
  std::optional<LRESULT> AnswerFrame(const Message& MessageA);
  std::optional<LRESULT> AnswerCanvas(const Message& MessageA);
  std::optional<LRESULT> AnswerScale(const Message& MessageA);
  void ConnectCompanions();
  void ConnectKeyboard();
  LRESULT GiveAccessible(WPARAM WordA);
  LRESULT DialogCode(const MSG* KeyA) const;
  void Follow();
  void FollowSoon();
  void Pressed();
  void FocusCame();
  void FocusWent(HWND ToA);
  bool IsOwn(HWND WindowA) const;
  void DrawChild(HDC DeviceA, const ChildWindow& WindowA, const HostedChild& HostA,
                 const DevicePlace& PlaceA);

  AccessibleTimeline* mAccessible = nullptr;  // made when it is first asked for
  bool mFollowsSoon = false;
  bool mHasFocus = false;   // as the container was told
  bool mIsPressed = false;  // the keyboard comes by the mouse
};

}  // namespace mur::win32
