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
      {"TZero", {Bind(&T::TZero), Bind(&T::SetTZero)}},
      {"TimeScaleBackColor", {Bind(&T::TimeScaleBackColor), Bind(&T::SetTimeScaleBackColor)}},
      {"TimeScaleForeColor", {Bind(&T::TimeScaleForeColor), Bind(&T::SetTimeScaleForeColor)}},
      {"TimeScaleFormatString", {Bind(&T::TimeScaleFormatString), Bind(&T::SetTimeScaleFormatString)}},
      {"TimeScaleFormatStyle", {Bind(&T::TimeScaleFormatStyle), Bind(&T::SetTimeScaleFormatStyle)}},
      {"TimeScaleHeight", {Bind(&T::TimeScaleHeight), Bind(&T::SetTimeScaleHeight)}},
      {"TimeScaleMarkerHighlightColor",
       {Bind(&T::TimeScaleMarkerHighlightColor), Bind(&T::SetTimeScaleMarkerHighlightColor)}},
      {"TimeScaleMarkerHighlightWidth",
       {Bind(&T::TimeScaleMarkerHighlightWidth), Bind(&T::SetTimeScaleMarkerHighlightWidth)}},
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

const Members* CoreRenderDriver::MembersOf(const Object& ObjectA) const {
  return dynamic_cast<const MURTimelineRender*>(&ObjectA) ? &ControlMembers()
                                                          : CoreDriver::MembersOf(ObjectA);
}

}  // namespace mur::test
