#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/narrow.h>
#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/companions/scroll_control.h>
#include <murtimeline/render/companions/time_mapper.h>
#include <murtimeline/render/companions/time_text.h>
#include <murtimeline/render/render_parts.h>
#include <murtimeline/util/control_utility.h>

namespace mur {
namespace {

// The canvas's coordinate unit, of which 1 is the control's own.
constexpr int kTwips = 1;

// One service for the thread, made when it is first needed. It is never released: its last use may come after
// everything else of the thread has ended.
const Ref<ITimeText>& SharedTimeText() {
  static thread_local Ref<ITimeText>* service = nullptr;
  if (!service) service = new Ref<ITimeText>(Make<MURTimeText>());
  return *service;
}

Companions Completed(Companions CompanionsA, ControlHost& HostA) {
  if (!CompanionsA.canvas) CompanionsA.canvas = Make<MURGraphicCanvas>(HostA.CanvasHost());
  if (!CompanionsA.scroller) CompanionsA.scroller = Make<MURTimelineScroll>(HostA.ScrollerHost());
  if (!CompanionsA.timeMapper) CompanionsA.timeMapper = Make<MURTimeMapper>();
  if (!CompanionsA.timeText) CompanionsA.timeText = SharedTimeText();
  return CompanionsA;
}

// A difference of the layout; throws Overflow where it leaves the single range.
float Less(double FromA, double ByA) {
  return NarrowToSingle(FromA - ByA);
}

}  // namespace

MURTimelineRender::MURTimelineRender(ControlHost& HostA, Companions CompanionsA)
    : mParts(std::make_unique<Parts>(*this, HostA, Completed(std::move(CompanionsA), HostA))) {
  mParts->reactions.Attach();
  mParts->state.tZero = Now();
  mParts->state.worldTimeT0 = Now();
  WriteStartSettings();
  ForwardScrollerEvents();
  mParts->interaction.Attach();
}

MURTimelineRender::~MURTimelineRender() = default;

void MURTimelineRender::WriteStartSettings() {
  const RenderState& state = mParts->state;
  ResumeNext([&] {
    ITimelineScroll& scroller = state.Scroller();
    scroller.SetBorderStyle(0);
    scroller.SetTimeScaleBackColor(state.timeScaleBackColor);
    scroller.SetTickEdge(1);
    scroller.SetShowCursor(true);
    scroller.SetLabelFontSize(9);
    scroller.SetShowMarkers(true);
    scroller.SetTimeScaleForeColor(state.timeScaleForeColor);
    scroller.SetTimeScaleMarkerHighlightColor(state.timeScaleMarkerHighlightColor);
    scroller.SetTimeScaleMarkerHighlightWidth(state.timeScaleMarkerHighlightWidth);
  });
  ResumeNext([&] { state.Canvas().SetBackColor(state.canvasBackColor); });
}

void MURTimelineRender::ForwardScrollerEvents() {
  // Calls the handler with the control kept alive, whatever the host does in it; its failure ends here.
  const auto listen = [this]<class... Arguments>(Event<Arguments...>& event, auto handler) {
    mParts->companionEvents.push_back(event.Connect([this, handler](Arguments... arguments) {
      const Ref<MURTimelineRender> keep(this);
      ResumeNext([&] { handler(arguments...); });
    }));
  };
  const auto forward = [&]<class... Arguments>(Event<Arguments...>& from, Event<Arguments...>& to) {
    listen(from, [&to](Arguments... arguments) { to.Raise(arguments...); });
  };
  ITimelineScroll& scroller = mParts->state.Scroller();
  const auto followCursor = [this] { SetCursorTime(mParts->state.Scroller().CursorTime()); };
  listen(scroller.CursorTimeChanged, followCursor);
  listen(scroller.CursorTimeChanging, followCursor);
  forward(scroller.ScaleClick, TimeScaleClick);
  forward(scroller.ScaleDblClick, TimeScaleDblClick);
  forward(scroller.ScaleMouseDown, TimeScaleMouseDown);
  forward(scroller.ScaleMouseMove, TimeScaleMouseMove);
  forward(scroller.ScaleMouseUp, TimeScaleMouseUp);
  forward(scroller.MarkerClick, MarkerClick);
  forward(scroller.MarkerDblClick, MarkerDblClick);
  forward(scroller.MarkerMouseDown, MarkerMouseDown);
  forward(scroller.MarkerMouseMove, MarkerMouseMove);
  forward(scroller.MarkerMouseUp, MarkerMouseUp);
  listen(mParts->state.Canvas().Repaint, [this] { Repaint(); });
}

void MURTimelineRender::Resize() {
  const Ref<MURTimelineRender> keep(this);
  const RenderState& state = mParts->state;
  MovableControl& scroller = state.host.ScrollerHost();
  const float margin = state.margin;
  const float width = Less(state.host.ScaleWidth(), margin + margin);
  MoveControl(scroller, margin, margin, width, scroller.Height());
  const float top = ControlBottom(&scroller);
  MoveControl(state.host.CanvasHost(), margin, top, width, Less(state.host.ScaleHeight(), top + margin));
}

Ref<CMURTimeline> MURTimelineRender::Timeline() const {
  return mParts->state.timeline;
}

void MURTimelineRender::SetTimeline(const Ref<CMURTimeline>& TimelineA) {
  const Ref<MURTimelineRender> keep(this);
  mParts->state.timeline = TimelineA;
  mParts->reactions.Attach();
  if (TimelineA) mParts->axis.CreateCursorItem();
}

void MURTimelineRender::ShowMembers() {
  const Ref<MURTimelineRender> keep(this);
  if (!mParts->state.timeline) return;
  auto members = mParts->state.timeline->NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next())
    ResumeNext([&] {
      if (!mParts->drawing.ItemOf(*member)) mParts->drawing.AddBar(member);
    });
  Repaint();
}

void MURTimelineRender::Repaint() {
  const Ref<MURTimelineRender> keep(this);
  mParts->axis.Repaint();
}

float MURTimelineRender::TrackTop(const Variant& TrackKeyIndexA) const {
  const Ref<const MURTimelineRender> keep(this);
  const RenderState& state = mParts->state;
  float top = 0;
  if (!state.timeline) return top;
  ResumeNext([&] {
    const Ref<IMURTimelineObject> object =
        state.timeline->ItemByKey(state.timeline->TrackKey(TrackKeyIndexA));
    const Ref<ICanvasItem> item = object ? mParts->drawing.ItemOf(*object) : Ref<ICanvasItem>();
    if (!item) return;
    const float twipsPerUnit = state.Canvas().ScaleMode() == kTwips ? 1 : ChildHost::kTwipsPerPixel;
    top = state.host.CanvasHost().Top() + item->Top() * twipsPerUnit;
  });
  return top;
}

void MURTimelineRender::AlignTracks() {
  const Ref<MURTimelineRender> keep(this);
  const Ref<CMURTimeline> timeline = mParts->state.timeline;
  const std::size_t tracks = timeline ? timeline->TrackCount() : 0;
  for (std::size_t track = 1; track <= tracks; ++track)
    ResumeNext([&] {
      const String key = timeline->TrackKey(static_cast<std::int32_t>(track));
      if (const auto object = timeline->ItemByKey(key)) mParts->drawing.PlaceObjectItemTree(object, 1);
    });
}

bool MURTimelineRender::IsDragging() const {
  bool isOnScale = false;
  ResumeNext([&] { isOnScale = mParts->state.Scroller().IsDragging(); });
  return isOnScale || mParts->interaction.IsDragging();
}

bool MURTimelineRender::CancelDrag() {
  const Ref<MURTimelineRender> keep(this);
  bool wasOnScale = false;
  ResumeNext([&] { wasOnScale = mParts->state.Scroller().CancelDrag(); });
  return mParts->interaction.CancelDrag() || wasOnScale;
}

const Companions& MURTimelineRender::Collaborators() const {
  return mParts->state.companions;
}

}  // namespace mur
