#include <algorithm>
#include <cmath>
#include <utility>

#include <oleacc.h>

#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/bar_description.h>
#include <murtimeline/win32/accessible_bars.h>

namespace mur::win32 {

AccessibleBars::AccessibleBars(const AccessibleContext& ContextA)
    : mContext(ContextA), mBars(*mContext.canvas) {
  mConnections.push_back(mContext.keyboard->CurrentChanged.Connect([this] { TellFocus(); }));
  const auto select = [this](const Ref<IMURTimelineObject>&) { TellSelection(); };
  mConnections.push_back(mContext.control.TLObjectClick.Connect(select));
  mConnections.push_back(mContext.control.TLObjectDblClick.Connect(select));
  Listen();
}

LONG AccessibleBars::Count() const {
  return Narrow<LONG>(mBars.Count());
}

Ref<ICanvasItem> AccessibleBars::Item(Id IdA) const {
  return IdA > 0 ? mBars.At(static_cast<std::size_t>(IdA) - 1) : Ref<ICanvasItem>();
}

AccessibleBars::Id AccessibleBars::IdOf(const Ref<ICanvasItem>& ItemA) const {
  const auto place = ItemA ? mBars.PlaceOf(*ItemA) : std::nullopt;
  return place ? Narrow<Id>(*place) + 1 : 0;
}

Ref<IMURTimelineObject> AccessibleBars::ObjectOf(const ICanvasItem& ItemA) const {
  const Ref<CMURTimeline> timeline = mContext.control.Timeline();
  return timeline ? timeline->ItemByKey(ItemA.Key()) : Ref<IMURTimelineObject>();
}

String AccessibleBars::Name(const ICanvasItem& ItemA) const {
  const auto object = ObjectOf(ItemA);
  return object ? BarName(*object) : String();
}

String AccessibleBars::Description(const ICanvasItem& ItemA) const {
  const auto object = ObjectOf(ItemA);
  return object ? BarDescription(mContext.control, object) : String();
}

LONG AccessibleBars::State(const Ref<ICanvasItem>& ItemA) const {
  LONG state = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
  if (!IsWindowEnabled(mContext.window.Handle())) state |= STATE_SYSTEM_UNAVAILABLE;
  if (!ItemA->Visible() || !IsWindowVisible(mContext.window.Handle())) state |= STATE_SYSTEM_INVISIBLE;
  if (!mBars.IsInView(*ItemA)) state |= STATE_SYSTEM_OFFSCREEN;
  if (Selected() == IdOf(ItemA)) state |= STATE_SYSTEM_SELECTED;
  if (Focused() == IdOf(ItemA)) state |= STATE_SYSTEM_FOCUSED;
  return state;
}

RECT AccessibleBars::Location(const ICanvasItem& ItemA) const {
  RECT all{};
  GetClientRect(mContext.window.Handle(), &all);
  const double scale = mContext.host.ScaleFactor();
  const auto edge = [scale](float pixel, LONG last) {
    const double device = std::round(static_cast<double>(pixel) * scale);
    return static_cast<LONG>(std::clamp(device, 0.0, static_cast<double>(last)));
  };
  const RectF bounds = mContext.canvas->PixelBounds(ItemA);
  RECT shown{edge(bounds.left, all.right), edge(bounds.top, all.bottom), edge(bounds.Right(), all.right),
             edge(bounds.Bottom(), all.bottom)};
  MapWindowPoints(mContext.window.Handle(), nullptr, reinterpret_cast<POINT*>(&shown), 2);
  return shown;
}

AccessibleBars::Id AccessibleBars::At(POINT ScreenA) const {
  POINT at = ScreenA;
  ScreenToClient(mContext.window.Handle(), &at);
  const double scale = mContext.host.ScaleFactor();
  return IdOf(mContext.canvas->ItemAt({static_cast<float>(static_cast<double>(at.x) / scale),
                                       static_cast<float>(static_cast<double>(at.y) / scale)}));
}

AccessibleBars::Id AccessibleBars::Focused() const {
  const bool hasKeyboard = mContext.window.Exists() && GetFocus() == mContext.window.Handle();
  return hasKeyboard ? IdOf(mContext.keyboard->Current()) : 0;
}

AccessibleBars::Id AccessibleBars::Selected() const {
  const Variant key = mContext.control.SelectedKey();
  return IdOf(mContext.canvas->Graphic(key));
}

AccessibleBars::Id AccessibleBars::Beside(const Ref<ICanvasItem>& ItemA, WalkStep StepA) const {
  const Ref<ICanvasItem> next = BarWalk(*mContext.canvas).Step(ItemA, StepA);
  return next == ItemA ? 0 : IdOf(next);
}

void AccessibleBars::Follow() {
  Listen();
  const LONG count = Count();
  if (std::exchange(mCount, count) != count) Tell(EVENT_OBJECT_REORDER, CHILDID_SELF);
}

// Bars of another time line's objects stay on the canvas; what is listened to is the present one.
void AccessibleBars::Listen() {
  const Ref<CMURTimeline> timeline = mContext.control.Timeline();
  if (timeline == mTimeline) return;
  mTimelineConnections.clear();
  mTimeline = timeline;
  if (!timeline) return;
  mTimelineConnections.push_back(timeline->TLObjectPropertyChanged.Connect(
      [this](const Ref<IMURTimelineObject>& object, StringView property, const Variant&) {
        const DWORD event = property == u"Tag" ? EVENT_OBJECT_NAMECHANGE : EVENT_OBJECT_VALUECHANGE;
        if (!IsWinEventHookInstalled(event)) return;
        if (const Id id = IdOf(mContext.canvas->GraphicByKey(object->Key()))) Tell(event, id);
      }));
}

void AccessibleBars::TellFocus() const {
  if (const Id id = Focused()) Tell(EVENT_OBJECT_FOCUS, id);
}

void AccessibleBars::TellSelection() {
  const Variant selected = mContext.control.SelectedKey();
  if (std::exchange(mSelected, selected) == selected) return;
  if (const Id id = Selected()) Tell(EVENT_OBJECT_SELECTION, id);
}

void AccessibleBars::Tell(DWORD EventA, Id IdA) const {
  if (mContext.window.Exists()) NotifyWinEvent(EventA, mContext.window.Handle(), OBJID_CLIENT, IdA);
}

}  // namespace mur::win32
