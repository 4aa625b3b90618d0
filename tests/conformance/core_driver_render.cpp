#include "tests/conformance/core_driver_render.h"

#include <stdexcept>

namespace mur::test {
namespace {

using binding::Bind;
using binding::Members;

const Members& ControlMembers() {
  using T = MURTimelineRender;
  static const Members kMembers = {
      {"AddRenderConfig", {Bind(&T::AddRenderConfig), {}}},
      {"AlignTracks", {Bind(&T::AlignTracks), {}}},
      {"AllowObjectDragging", {Bind(&T::AllowObjectDragging), Bind(&T::SetAllowObjectDragging)}},
      {"AutoHighlightObjects", {Bind(&T::AutoHighlightObjects), Bind(&T::SetAutoHighlightObjects)}},
      {"AutoObjectCaption", {Bind(&T::AutoObjectCaption), Bind(&T::SetAutoObjectCaption)}},
      {"AutoObjectTooltipText", {Bind(&T::AutoObjectTooltipText), Bind(&T::SetAutoObjectTooltipText)}},
      {"AutoSelectMode", {Bind(&T::AutoSelectMode), Bind(&T::SetAutoSelectMode)}},
      {"BackColor", {Bind(&T::BackColor), Bind(&T::SetBackColor)}},
      {"BarHeight", {Bind(&T::BarHeight), Bind(&T::SetBarHeight)}},
      {"BarSeparation", {Bind(&T::BarSeparation), Bind(&T::SetBarSeparation)}},
      {"CursorTime", {Bind(&T::CursorTime), Bind(&T::SetCursorTime)}},
      {"DefaultRenderConfig", {Bind(&T::DefaultRenderConfig), {}}},
      {"Duration", {Bind(&T::Duration), Bind(&T::SetDuration)}},
      {"DurationFormatString", {Bind(&T::DurationFormatString), Bind(&T::SetDurationFormatString)}},
      {"DurationFormatStyle", {Bind(&T::DurationFormatStyle), Bind(&T::SetDurationFormatStyle)}},
      {"FormatString", {Bind(&T::FormatString), Bind(&T::SetFormatString)}},
      {"FormatStyle", {Bind(&T::FormatStyle), Bind(&T::SetFormatStyle)}},
      {"OLEDropMode", {Bind(&T::OLEDropMode), Bind(&T::SetOLEDropMode)}},
      {"RenderConfig", {Bind(&T::RenderConfig), {}}},
      {"SelectedKey", {Bind(&T::SelectedKey), {}}},
      {"ShowToolTips", {Bind(&T::ShowToolTips), Bind(&T::SetShowToolTips)}},
      {"TLObject_BackColor", {Bind(&T::TLObject_BackColor), Bind(&T::SetTLObject_BackColor)}},
      {"TLObject_Caption", {Bind(&T::TLObject_Caption), Bind(&T::SetTLObject_Caption)}},
      {"TLObject_ForeColor", {Bind(&T::TLObject_ForeColor), Bind(&T::SetTLObject_ForeColor)}},
      {"TLObject_Visible", {Bind(&T::TLObject_Visible), Bind(&T::SetTLObject_Visible)}},
      {"TZero", {Bind(&T::TZero), Bind(&T::SetTZero)}},
      {"TimeScaleBackColor", {Bind(&T::TimeScaleBackColor), Bind(&T::SetTimeScaleBackColor)}},
      {"TimeScaleForeColor", {Bind(&T::TimeScaleForeColor), Bind(&T::SetTimeScaleForeColor)}},
      {"TimeScaleFormatString", {Bind(&T::TimeScaleFormatString), Bind(&T::SetTimeScaleFormatString)}},
      {"TimeScaleFormatStyle", {Bind(&T::TimeScaleFormatStyle), Bind(&T::SetTimeScaleFormatStyle)}},
      {"TimeScaleHeight", {Bind(&T::TimeScaleHeight), Bind(&T::SetTimeScaleHeight)}},
      {"TimeScaleMarkerAdd", {Bind(&T::TimeScaleMarkerAdd, {Variant(u""), Variant(true)}), {}}},
      {"TimeScaleMarkerCaption", {Bind(&T::TimeScaleMarkerCaption), Bind(&T::SetTimeScaleMarkerCaption)}},
      {"TimeScaleMarkerDefinition", {Bind(&T::TimeScaleMarkerDefinition), {}}},
      {"TimeScaleMarkerHighlightColor",
       {Bind(&T::TimeScaleMarkerHighlightColor), Bind(&T::SetTimeScaleMarkerHighlightColor)}},
      {"TimeScaleMarkerHighlightWidth",
       {Bind(&T::TimeScaleMarkerHighlightWidth), Bind(&T::SetTimeScaleMarkerHighlightWidth)}},
      {"TimeScaleMarkerRemove", {Bind(&T::TimeScaleMarkerRemove), {}}},
      {"TimeScaleMarkerTag", {Bind(&T::TimeScaleMarkerTag), Bind(&T::SetTimeScaleMarkerTag)}},
      {"TimeScaleMarkerUserData", {Bind(&T::TimeScaleMarkerUserData), Bind(&T::SetTimeScaleMarkerUserData)}},
      {"TimeScaleMarkerWorldTime",
       {Bind(&T::TimeScaleMarkerWorldTime), Bind(&T::SetTimeScaleMarkerWorldTime)}},
      {"TimeScaleMarkersClear", {Bind(&T::TimeScaleMarkersClear), {}}},
      {"TimeScaleMarkersCount", {Bind(&T::TimeScaleMarkersCount), {}}},
      {"Timeline", {Bind(&T::Timeline), Bind(&T::SetTimeline)}},
      {"TimesOffsetMode", {Bind(&T::TimesOffsetMode), Bind(&T::SetTimesOffsetMode)}},
      {"ToolTipText", {Bind(&T::ToolTipText), Bind(&T::SetToolTipText)}},
      {"TrackSeparation", {Bind(&T::TrackSeparation), Bind(&T::SetTrackSeparation)}},
      {"TrackTop", {Bind(&T::TrackTop), {}}},
      {"WorldTimeT0", {Bind(&T::WorldTimeT0), Bind(&T::SetWorldTimeT0)}},
      {"XToWorldTime", {Bind(&T::XToWorldTime), {}}},
      {"YToTrackKey", {Bind(&T::YToTrackKey), {}}},
  };
  return kMembers;
}

const Members& MarkerMembers() {
  using T = ITimeScaleMarker;
  static const Members kMembers = {
      {"Caption", {Bind(&T::Caption), Bind(&T::SetCaption)}},
      {"Tag", {Bind(&T::Tag), Bind(&T::SetTag)}},
      {"UserData", {Bind(&T::UserData), Bind(&T::SetUserData)}},
      {"WorldTime", {Bind(&T::WorldTime), Bind(&T::SetWorldTime)}},
  };
  return kMembers;
}

// A part of the control that takes something: its canvas or its scale; none for another word.
template <class Target>
Target* PartOf(const MURTimelineRender& ControlA, const std::string& PartA) {
  const Companions& parts = ControlA.Collaborators();
  if (PartA == "canvas") return dynamic_cast<Target*>(parts.canvas.Get());
  return PartA == "scale" ? dynamic_cast<Target*>(parts.scroller.Get()) : nullptr;
}

}  // namespace

CoreRenderDriver::~CoreRenderDriver() {
  for (auto& control : mControls) control.control->SetTimeline(nullptr);
}

Ref<Object> CoreRenderDriver::Create(const std::string& ClassA) {
  if (ClassA != "control") return CoreDriver::Create(ClassA);
  Control& control = mControls.emplace_back();
  control.control = Make<MURTimelineRender>(control.host);
  return control.control;
}

void CoreRenderDriver::Listen(const Ref<Object>& ObjectA, const Listener& ListenerA) {
  auto* control = dynamic_cast<MURTimelineRender*>(ObjectA.Get());
  if (!control) return CoreDriver::Listen(ObjectA, ListenerA);
  ListenTo(control->Click, "Click", ListenerA);
  ListenTo(control->DblClick, "DblClick", ListenerA);
  ListenTo(control->MouseDown, "MouseDown", ListenerA);
  ListenTo(control->MouseMove, "MouseMove", ListenerA);
  ListenTo(control->MouseUp, "MouseUp", ListenerA);
  ListenTo(control->OLEDragDrop, "OLEDragDrop", ListenerA);
  ListenTo(control->OLEDragOver, "OLEDragOver", ListenerA);
  ListenTo(control->TLObjectClick, "TLObjectClick", ListenerA);
  ListenTo(control->TLObjectDblClick, "TLObjectDblClick", ListenerA);
  ListenTo(control->TLObjectMouseDown, "TLObjectMouseDown", ListenerA);
  ListenTo(control->TLObjectMouseMove, "TLObjectMouseMove", ListenerA);
  ListenTo(control->TLObjectMouseUp, "TLObjectMouseUp", ListenerA);
  ListenTo(control->TLObjectOLEDragDrop, "TLObjectOLEDragDrop", ListenerA);
  ListenTo(control->TLObjectOLEDragOver, "TLObjectOLEDragOver", ListenerA);
  ListenTo(control->CursorClick, "CursorClick", ListenerA);
  ListenTo(control->CursorDblClick, "CursorDblClick", ListenerA);
  ListenTo(control->CursorMouseDown, "CursorMouseDown", ListenerA);
  ListenTo(control->CursorMouseMove, "CursorMouseMove", ListenerA);
  ListenTo(control->CursorMouseUp, "CursorMouseUp", ListenerA);
  ListenTo(control->CursorOLEDragDrop, "CursorOLEDragDrop", ListenerA);
  ListenTo(control->CursorOLEDragOver, "CursorOLEDragOver", ListenerA);
  ListenTo(control->CursorTimeChange, "CursorTimeChange", ListenerA);
  ListenTo(control->TimeScaleClick, "TimeScaleClick", ListenerA);
  ListenTo(control->TimeScaleDblClick, "TimeScaleDblClick", ListenerA);
  ListenTo(control->TimeScaleMouseDown, "TimeScaleMouseDown", ListenerA);
  ListenTo(control->TimeScaleMouseMove, "TimeScaleMouseMove", ListenerA);
  ListenTo(control->TimeScaleMouseUp, "TimeScaleMouseUp", ListenerA);
  ListenTo(control->MarkerClick, "MarkerClick", ListenerA);
  ListenTo(control->MarkerDblClick, "MarkerDblClick", ListenerA);
  ListenTo(control->MarkerMouseDown, "MarkerMouseDown", ListenerA);
  ListenTo(control->MarkerMouseMove, "MarkerMouseMove", ListenerA);
  ListenTo(control->MarkerMouseUp, "MarkerMouseUp", ListenerA);
}

void CoreRenderDriver::Resize(const Ref<Object>& ObjectA, double WidthA, double HeightA) {
  for (auto& control : mControls) {
    if (!(Ref<Object>(control.control) == ObjectA)) continue;
    control.host.SetScaleWidth(NarrowToSingle(WidthA));
    control.host.SetScaleHeight(NarrowToSingle(HeightA));
    return control.control->Resize();
  }
  CoreDriver::Resize(ObjectA, WidthA, HeightA);
}

void CoreRenderDriver::Point(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
                             const PointerInput& InputA) {
  const auto* control = dynamic_cast<const MURTimelineRender*>(ObjectA.Get());
  auto* target = control ? PartOf<PointerTarget>(*control, PartA) : nullptr;
  if (!target) return CoreDriver::Point(ObjectA, PartA, ActionA, InputA);
  static const std::map<std::string, void (*)(PointerTarget&, const PointerInput&)> kActions = {
      {"press", [](PointerTarget& part, const PointerInput& input) { part.PointerPressed(input); }},
      {"double", [](PointerTarget& part, const PointerInput& input) { part.PointerDoublePressed(input); }},
      {"move", [](PointerTarget& part, const PointerInput& input) { part.PointerMoved(input); }},
      {"release", [](PointerTarget& part, const PointerInput& input) { part.PointerReleased(input); }},
      {"leave", [](PointerTarget& part, const PointerInput&) { part.PointerLeft(); }},
      {"lose", [](PointerTarget& part, const PointerInput&) { part.PointerLost(); }},
  };
  const auto found = kActions.find(ActionA);
  if (found == kActions.end()) throw std::invalid_argument("a pointer does not " + ActionA);
  found->second(*target, InputA);
}

void CoreRenderDriver::Drag(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
                            const DragInput& InputA) {
  const auto* control = dynamic_cast<const MURTimelineRender*>(ObjectA.Get());
  auto* target = control ? PartOf<DropTarget>(*control, PartA) : nullptr;
  if (!target) return CoreDriver::Drag(ObjectA, PartA, ActionA, InputA);
  static const std::map<std::string, std::int16_t> kStates = {
      {"enter", kDragEnters}, {"leave", kDragLeaves}, {"over", kDragIsOver}};
  DragInput input = InputA;
  if (ActionA == "drop") return target->Dropped(input);
  const auto found = kStates.find(ActionA);
  if (found == kStates.end()) throw std::invalid_argument("nothing dragged can " + ActionA);
  target->DraggedOver(input, found->second);
}

const Members* CoreRenderDriver::MembersOf(const Object& ObjectA) const {
  if (dynamic_cast<const MURTimelineRender*>(&ObjectA)) return &ControlMembers();
  if (dynamic_cast<const ITimeScaleMarker*>(&ObjectA)) return &MarkerMembers();
  return CoreDriver::MembersOf(ObjectA);
}

}  // namespace mur::test
