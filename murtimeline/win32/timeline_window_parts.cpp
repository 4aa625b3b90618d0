#include <cmath>
#include <utility>

#include <murtimeline/automation/guard.h>
#include <murtimeline/win32/accessible_timeline.h>
#include <murtimeline/win32/dpi.h>
#include <murtimeline/win32/listener.h>
#include <murtimeline/win32/timeline_window_parts.h>

namespace mur::win32 {
namespace {

// Keeps the windows' parts with a companion that may outlive them.
class Keeper final : public HostFace {
 public:
  explicit Keeper(Object& PartsA) : mParts(&PartsA) {}

 private:
  Ref<Object> mParts;
};

}  // namespace

TimelineWindow::Parts::Parts(HINSTANCE ModuleA)
    : frame(
          ModuleA, *this, [this](const Message& message) { return AnswerFrame(message); },
          [this] { Tell(events.Destroyed); }),
      scaleWindow(ModuleA, *this, scaleHost, tools),
      canvasWindow(ModuleA, *this, canvasHost, tools),
      drops(*this),
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
  ConnectKeyboard();
  drops.Attach(canvas);
  bars.emplace(AccessibleContext{*this, canvasWindow, canvasHost, *control, canvas, keyboard});
}

void TimelineWindow::Parts::ConnectKeyboard() {
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
  if (AccessibleTimeline* accessible = std::exchange(mAccessible, nullptr)) {
    accessible->Disconnect();
    accessible->Release();
  }
  bars.reset();
  keyboard = {};
  drops.Attach({});
  rows.Attach({});
  scroller = {};
  canvas = {};
}

bool TimelineWindow::Parts::CreateWindows(HWND ParentA, const RECT& PlaceA) {
  if (!scroller || !canvas || frame.Exists() || !frame.CreateIn(ParentA, PlaceA)) return false;
  forms.SetOwner(frame.Handle());
  Rescale();
  if (!scaleWindow.CreateIn(frame.Handle()) || !canvasWindow.CreateIn(frame.Handle())) {
    frame.Destroy();
    return false;
  }
  drops.Open(canvasWindow.Handle(), [this] { return scale; });
  return true;
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
  drops.SetTakesDrops(ambience.userMode);
  Restyle();
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
