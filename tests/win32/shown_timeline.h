#pragma once

#include <functional>

#include <gtest/gtest.h>

#include <murtimeline/model/timeline_media.h>
#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/companions/scroll_control.h>
#include <murtimeline/win32/timeline_window.h>

#include "tests/support/render_fixture.h"

namespace mur::win32::test {

using mur::test::At;
using mur::test::kNoon;

/// A top-level window for others to stand on.
class HostWindow {
 public:
  HostWindow()
      : mHandle(CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 1100, 500,
                                nullptr, nullptr, GetModuleHandleW(nullptr), nullptr)) {}
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;
  ~HostWindow() {
    if (IsWindow(mHandle)) DestroyWindow(mHandle);
  }
  HWND Handle() const { return mHandle; }

 private:
  HWND mHandle;
};

/// Lets all messages that wait take effect.
inline void PumpMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

/// A control in a window of 1000 x 240 device pixels: a pixel a second from noon under a scale of 40 pixels,
/// tracks 46 pixels apart with bars 40 high, the cursor at 500. Dragging is allowed, bars are not
/// highlighted.
struct ShownTimeline {
  static constexpr RECT kPlace{0, 0, 1000, 240};

  ShownTimeline() {
    window->Attach(*control);
    window->Create(host.Handle(), kPlace);
    control->SetTimeline(timeline.Get());
    control->SetWorldTimeT0(kNoon);
    control->SetDuration(1000);
    control->SetCursorTime(At(500));
    control->SetAllowObjectDragging(true);
    control->SetAutoHighlightObjects(false);
    PumpMessages();
  }
  ~ShownTimeline() { window->Detach(); }

  /// A bar of a hundred pixels on a track of its own.
  Ref<IMURTimelineObject> Bar(StringView KeyA, int StartA) {
    auto object = timeline->Add(murtlotMedia, Variant(KeyA), true);
    object->SetWorldTimeT0(At(StartA));
    if (auto* media = dynamic_cast<CMURTimelineMedia*>(object.Get())) media->SetMediaDuration(100);
    object->SetDuration(100);
    control->AlignTracks();
    Canvas().Repaint.Raise();
    return object;
  }

  MURGraphicCanvas& Canvas() const {
    return static_cast<MURGraphicCanvas&>(*control->Collaborators().canvas);
  }
  MURTimelineScroll& Scroller() const {
    return static_cast<MURTimelineScroll&>(*control->Collaborators().scroller);
  }
  /// The windows of the children, in the order of their places.
  HWND ScaleWindow() const { return ChildWindowFromPoint(window->Handle(), {5, 5}); }
  HWND CanvasWindow() const { return ChildWindowFromPoint(window->Handle(), {5, 239}); }

  LRESULT Send(UINT IdA, WPARAM WordA, LPARAM DataA) const {
    return SendMessageW(CanvasWindow(), IdA, WordA, DataA);
  }
  void Press(int XA, int YA, WPARAM KeysA = MK_LBUTTON) const {
    Send(WM_LBUTTONDOWN, KeysA, MAKELPARAM(XA, YA));
  }
  void MoveTo(int XA, int YA, WPARAM KeysA = MK_LBUTTON) const {
    Send(WM_MOUSEMOVE, KeysA, MAKELPARAM(XA, YA));
  }
  void Release(int XA, int YA) const { Send(WM_LBUTTONUP, 0, MAKELPARAM(XA, YA)); }
  void Click(int XA, int YA) const {
    Press(XA, YA);
    Release(XA, YA);
  }
  void Key(WPARAM KeyA) const { Send(WM_KEYDOWN, KeyA, 0); }

  FrozenClock clock{kNoon};
  HostWindow host;
  OwnedTimeline timeline;
  std::unique_ptr<TimelineWindow> window = std::make_unique<TimelineWindow>(GetModuleHandleW(nullptr));
  Ref<MURTimelineRender> control = Make<MURTimelineRender>(*window);
};

}  // namespace mur::win32::test
