#include <cmath>
#include <utility>

#include <murtimeline/automation/guard.h>
#include <murtimeline/win32/dpi.h>
#include <murtimeline/win32/keys.h>
#include <murtimeline/win32/timeline_window_parts.h>

namespace mur::win32 {
namespace {

constexpr UINT kFollow = WM_USER + 1;

// Keeps the windows' parts with a companion that may outlive them.
class Keeper final : public HostFace {
 public:
  explicit Keeper(Object& PartsA) : mParts(&PartsA) {}

 private:
  Ref<Object> mParts;
};

// By value: what is told may end the listener.
void Tell(std::function<void()> ListenerA) {
  if (ListenerA) ListenerA();
}

bool ChangesLooks(UINT IdA) {
  return IdA == WM_SYSCOLORCHANGE || IdA == WM_SETTINGCHANGE || IdA == WM_THEMECHANGED;
}

}  // namespace

TimelineWindow::Parts::Parts(HINSTANCE ModuleA)
    : module(ModuleA),
      frame(
          ModuleA, *this, [this](const Message& message) { return AnswerFrame(message); },
          [this] { Tell(events.Destroyed); }),
      scaleWindow(ModuleA, *this, scaleHost, tools),
      canvasWindow(ModuleA, *this, canvasHost, tools),
      forms(ModuleA) {
  constexpr float kScaleDesignHeight = 600;  // twips
  scaleHost.SetHeight(kScaleDesignHeight);
  Rescale();
}

// A control whose companions are not ours is laid out and hears of its size; they show themselves.
void TimelineWindow::Parts::Attach(MURTimelineRender& ControlA) {
  control = &ControlA;
  const Companions& companions = ControlA.Collaborators();
  scroller = Ref(dynamic_cast<MURTimelineScroll*>(companions.scroller.Get()));
  canvas = Ref(dynamic_cast<MURGraphicCanvas*>(companions.canvas.Get()));
  if (scroller && canvas) ConnectCompanions();
  LayOut();
}

void TimelineWindow::Parts::ConnectCompanions() {
  scroller->SetFace(new Keeper(*this));
  canvas->SetFace(new Keeper(*this));
  rows.Attach(canvas);
  keyboard = Make<BarKeyboard>(*control, canvas, scroller);
  canvasHost.SetResized([this] { canvas->Resized(); });
  canvasHost.SetInvalidated([this] {
    FollowSoon();
    Tell(events.ViewChanged);
  });
  scaleHost.SetInvalidated([this] { Tell(events.ViewChanged); });
  scaleWindow.SetRole({
      [this](Surface& surface, const RectF& dirty) { scroller->Paint(surface, dirty); },
      scroller.Get(),
      [this](PointF point) {
        return HoverText{scroller->ToolTipAt(point), scroller->ToolTipAreaAt(point)};
      },
      [this](const Message& message) { return AnswerScale(message); },
      [this] { Pressed(); },
  });
  canvasWindow.SetRole({
      [this](Surface& surface, const RectF& dirty) {
        canvas->Paint(surface, dirty);
        FollowSoon();  // what changed between two paintings was not told one by one
      },
      canvas.Get(),
      [this](PointF point) {
        const Ref<ICanvasItem> item = canvas->ItemAt(point);
        return HoverText{canvas->ToolTipAt(point), item ? canvas->PixelBounds(*item) : RectF()};
      },
      [this](const Message& message) { return AnswerCanvas(message); },
      [this] { Pressed(); },
  });
  connections.push_back(canvas->ItemMouseDown.Connect(
      [this](const Ref<ICanvasItem>& item, auto&...) { keyboard->TakeUp(item); }));
  connections.push_back(
      keyboard->BarReached.Connect([this](const Ref<ICanvasItem>& bar) { rows.Reveal(*bar); }));
  connections.push_back(keyboard->DragsCancelled.Connect([this] {
    canvasWindow.LosePointer();
    scaleWindow.LosePointer();
  }));
}

// What is left to hold these parts are the companions, as long as they are at work.
void TimelineWindow::Parts::Close() {
  control = nullptr;
  connections.clear();
  events = {};
  canvasHost.SetResized({});
  canvasHost.SetInvalidated({});
  scaleHost.SetInvalidated({});
  frame.Destroy();
  ResumeNext([this] { canvasWindow.LosePointer(); });
  ResumeNext([this] { scaleWindow.LosePointer(); });
  keyboard = {};
  rows.Attach({});
  scroller = {};
  canvas = {};
}

bool TimelineWindow::Parts::CreateWindows(HWND ParentA, const RECT& PlaceA) {
  if (!scroller || !canvas || frame.Exists() || !frame.CreateIn(ParentA, PlaceA)) return false;
  forms.SetOwner(frame.Handle());
  Rescale();
  if (scaleWindow.CreateIn(frame.Handle()) && canvasWindow.CreateIn(frame.Handle())) return true;
  frame.Destroy();
  return false;
}

void TimelineWindow::Parts::LayOut() {
  if (!control) return;
  const Ref<MURTimelineRender> keep(control);
  ResumeNext([&] { keep->Resize(); });
}

void TimelineWindow::Parts::Rescale() {
  const double factor = scaleInstead.value_or(ScaleFactorOf(frame.Handle()));
  if (std::exchange(scale, factor) == factor && scaleHost.ScaleFactor() == factor) return;
  scaleHost.SetScaleFactor(factor);
  canvasHost.SetScaleFactor(factor);
  LayOut();
  Restyle();
}

void TimelineWindow::Parts::Restyle() {
  tools.fonts.SetFace(ambience.fontFace);
  scaleHost.InvalidateAll();
  canvasHost.InvalidateAll();
}

void TimelineWindow::Parts::UseAmbience(const Ambience& AmbienceA) {
  if (std::exchange(ambience, AmbienceA) == AmbienceA) return;
  for (ChildWindow* window : {&scaleWindow, &canvasWindow}) {
    window->SetTakesPointer(ambience.userMode);
    window->SetRightToLeft(ambience.rightToLeft);
  }
  Restyle();
}

std::optional<LRESULT> TimelineWindow::Parts::AnswerFrame(const Message& MessageA) {
  switch (MessageA.id) {
    case WM_SIZE:
      size = {LOWORD(MessageA.data), HIWORD(MessageA.data)};
      LayOut();
      return 0;
    case WM_SETFOCUS:
      SetFocus(canvasWindow.Handle());
      return 0;
    case WM_DPICHANGED_AFTERPARENT:
      Rescale();
      return 0;
    case WM_DESTROY:
      forms.SetOwner(nullptr);
      return std::nullopt;
    default:
      if (ChangesLooks(MessageA.id)) Restyle();
      return std::nullopt;
  }
}

std::optional<LRESULT> TimelineWindow::Parts::AnswerScale(const Message& MessageA) {
  if (ChangesLooks(MessageA.id)) Restyle();
  return std::nullopt;
}

std::optional<LRESULT> TimelineWindow::Parts::AnswerCanvas(const Message& MessageA) {
  if (rows.Handle(MessageA)) return 0;
  switch (MessageA.id) {
    case WM_SETFOCUS:
      FocusCame(reinterpret_cast<HWND>(MessageA.word));
      return 0;
    case WM_KILLFOCUS:
      FocusWent(reinterpret_cast<HWND>(MessageA.word));
      return 0;
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (PressKey(MessageA.word)) return 0;
      return std::nullopt;
    case kFollow:
      Follow();
      return 0;
    case WM_DESTROY:
      rows.Forget();
      return std::nullopt;
    default:
      return AnswerScale(MessageA);
  }
}

// Once for all that the messages at hand do.
void TimelineWindow::Parts::FollowSoon() {
  if (!canvasWindow.Exists() || std::exchange(mFollowsSoon, true)) return;
  mFollowsSoon = PostMessageW(canvasWindow.Handle(), kFollow, 0, 0) != FALSE;
}

void TimelineWindow::Parts::Follow() {
  mFollowsSoon = false;
  rows.Follow(canvasWindow);
}

// Container first: it may want to make the control the active one before anything hears of the press.
void TimelineWindow::Parts::Pressed() {
  mIsPressed = true;
  Tell(events.Pressed);
  if (canvasWindow.Exists() && !HasFocus()) SetFocus(canvasWindow.Handle());
  mIsPressed = false;
}

void TimelineWindow::Parts::FocusCame(HWND FromA) {
  if (keyboard) Ref(keyboard)->ShowRing(!mIsPressed);
  if (!IsOwn(FromA)) Tell(events.FocusTaken);
}

void TimelineWindow::Parts::FocusWent(HWND ToA) {
  if (keyboard) Ref(keyboard)->ShowRing(false);
  if (!IsOwn(ToA)) Tell(events.FocusLost);
}

bool TimelineWindow::Parts::IsOwn(HWND WindowA) const {
  return WindowA && frame.Exists() && (WindowA == frame.Handle() || IsChild(frame.Handle(), WindowA));
}

bool TimelineWindow::Parts::HasFocus() const {
  return IsOwn(GetFocus());
}

bool TimelineWindow::Parts::PressKey(WPARAM VirtualKeyA) {
  if (!ambience.userMode || !keyboard || !control) return false;
  const std::int16_t shift = HeldModifiers();
  const bool pages = VirtualKeyA == VK_PRIOR || VirtualKeyA == VK_NEXT;
  if (pages && shift == 0) return rows.TurnPage(VirtualKeyA == VK_NEXT);
  return Ref(keyboard)->Press({KeyOf(VirtualKeyA), shift});
}

// The children one by one, each cut to its place.
void TimelineWindow::Parts::Draw(HDC DeviceA, const RECT& PlaceA) {
  if (!scroller || !canvas || size.cx <= 0 || size.cy <= 0) return;
  const DevicePlace place{{PlaceA.left, PlaceA.top},
                          static_cast<double>(PlaceA.right - PlaceA.left) / static_cast<double>(size.cx),
                          static_cast<double>(PlaceA.bottom - PlaceA.top) / static_cast<double>(size.cy)};
  DrawChild(DeviceA, scaleWindow, scaleHost, place);
  DrawChild(DeviceA, canvasWindow, canvasHost, place);
}

// `PlaceA` is that of the frame, whose units are device pixels of the window.
void TimelineWindow::Parts::DrawChild(HDC DeviceA, const ChildWindow& WindowA, const HostedChild& HostA,
                                      const DevicePlace& PlaceA) {
  const RECT child = HostA.DevicePlace();
  const auto x = [&](LONG at) { return PlaceA.origin.x + std::lround(static_cast<double>(at) * PlaceA.x); };
  const auto y = [&](LONG at) { return PlaceA.origin.y + std::lround(static_cast<double>(at) * PlaceA.y); };
  const RECT shown{x(child.left), y(child.top), x(std::min(child.right, size.cx)),
                   y(std::min(child.bottom, size.cy))};
  if (shown.right <= shown.left || shown.bottom <= shown.top) return;
  SaveDC(DeviceA);
  IntersectClipRect(DeviceA, shown.left, shown.top, shown.right, shown.bottom);
  WindowA.Draw(DeviceA, {{shown.left, shown.top}, PlaceA.x * scale, PlaceA.y * scale},
               {0, 0, shown.right - shown.left, shown.bottom - shown.top});
  RestoreDC(DeviceA, -1);
}

}  // namespace mur::win32
