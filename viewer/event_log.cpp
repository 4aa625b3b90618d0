#include "viewer/event_log.h"

#include <array>
#include <charconv>
#include <utility>

#include <murtimeline/automation/regional.h>

namespace mur::viewer {
namespace {

std::string Quoted(StringView TextA) {
  std::string quoted = "\"";
  for (const char unit : ToUtf8(TextA)) {
    if (unit == '"' || unit == '\\') quoted += '\\';
    quoted += static_cast<unsigned char>(unit) < 0x20 ? ' ' : unit;
  }
  return quoted + '"';
}

std::string NumberText(double ValueA) {
  return ToUtf8(Regional().NumberToText(ValueA));
}

// What an event hands over, as text.
std::string Text(StringView TextA) {
  return Quoted(TextA);
}
std::string Text(Date TimeA) {
  return ExactWorldTime(TimeA);
}
std::string Text(float ValueA) {
  std::array<char, 32> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), ValueA).ptr};
}
std::string Text(std::int16_t ValueA) {
  return std::to_string(ValueA);
}
std::string Text(std::int32_t ValueA) {
  return std::to_string(ValueA);
}
std::string Text(const Ref<IMURTimelineObject>& ObjectA) {
  return Quoted(ObjectA->Key());
}
std::string Text(const Ref<Object>& /*DataA*/) {
  return "data";
}
std::string Text(const Variant& ValueA) {
  if (const String* text = ValueA.As<String>()) return Quoted(*text);
  if (const Date* date = ValueA.As<Date>()) return ExactWorldTime(*date);
  if (const bool* flag = ValueA.As<bool>()) return *flag ? "True" : "False";
  if (const auto number = ValueA.Number()) return NumberText(*number);
  return KindName(ValueA.Kind());
}

}  // namespace

EventLog::EventLog(CMURTimeline& TimelineA, MURTimelineRender& ControlA, LineSink SinkA)
    : mSink(std::move(SinkA)) {
  FollowTimeline(TimelineA);
  FollowObjects(TimelineA);
  FollowPointer(ControlA);
  FollowDragAndDrop(ControlA);
  FollowTimeScale(ControlA);
}

template <class... Arguments>
void EventLog::Follow(Event<Arguments...>& EventA, const char* NameA) {
  mConnections.push_back(EventA.Connect([this, NameA](const auto&... arguments) {
    std::string line = NameA;
    ((line += ' ' + Text(arguments)), ...);
    mSink(line);
  }));
}

void EventLog::FollowTimeline(CMURTimeline& TimelineA) {
  Follow(TimelineA.Clearing, "timeline Clearing");
  Follow(TimelineA.Cleared, "timeline Cleared");
  mConnections.push_back(TimelineA.PropertyChanged.Connect(
      [this](StringView name) { mSink("timeline PropertyChanged " + ToUtf8(name)); }));
}

void EventLog::FollowObjects(CMURTimeline& TimelineA) {
  Follow(TimelineA.TLObjectAdded, "timeline TLObjectAdded");
  mConnections.push_back(TimelineA.TLObjectRemoved.Connect([this](const Variant& key, StringView tag) {
    mSink("timeline TLObjectRemoved " + Text(key) + " tag " + Quoted(tag));
  }));
  Follow(TimelineA.TLObjectAdopted, "timeline TLObjectAdopted");
  Follow(TimelineA.TLObjectOrphaned, "timeline TLObjectOrphaned");
  mConnections.push_back(TimelineA.TLObjectPropertyChanged.Connect(
      [this](const Ref<IMURTimelineObject>& object, StringView name, const Variant& value) {
        mSink("timeline TLObjectPropertyChanged " + Text(object) + " " + ToUtf8(name) + " = " + Text(value));
      }));
}

void EventLog::FollowPointer(MURTimelineRender& ControlA) {
  Follow(ControlA.Click, "control Click");
  Follow(ControlA.DblClick, "control DblClick");
  Follow(ControlA.MouseDown, "control MouseDown");
  Follow(ControlA.MouseMove, "control MouseMove");
  Follow(ControlA.MouseUp, "control MouseUp");
  Follow(ControlA.TLObjectClick, "control TLObjectClick");
  Follow(ControlA.TLObjectDblClick, "control TLObjectDblClick");
  Follow(ControlA.TLObjectMouseDown, "control TLObjectMouseDown");
  Follow(ControlA.TLObjectMouseMove, "control TLObjectMouseMove");
  Follow(ControlA.TLObjectMouseUp, "control TLObjectMouseUp");
  Follow(ControlA.CursorClick, "control CursorClick");
  Follow(ControlA.CursorDblClick, "control CursorDblClick");
  Follow(ControlA.CursorMouseDown, "control CursorMouseDown");
  Follow(ControlA.CursorMouseMove, "control CursorMouseMove");
  Follow(ControlA.CursorMouseUp, "control CursorMouseUp");
}

void EventLog::FollowDragAndDrop(MURTimelineRender& ControlA) {
  Follow(ControlA.OLEDragDrop, "control OLEDragDrop");
  Follow(ControlA.OLEDragOver, "control OLEDragOver");
  Follow(ControlA.TLObjectOLEDragDrop, "control TLObjectOLEDragDrop");
  Follow(ControlA.TLObjectOLEDragOver, "control TLObjectOLEDragOver");
  Follow(ControlA.CursorOLEDragDrop, "control CursorOLEDragDrop");
  Follow(ControlA.CursorOLEDragOver, "control CursorOLEDragOver");
}

void EventLog::FollowTimeScale(MURTimelineRender& ControlA) {
  Follow(ControlA.CursorTimeChange, "control CursorTimeChange");
  Follow(ControlA.TimeScaleClick, "control TimeScaleClick");
  Follow(ControlA.TimeScaleDblClick, "control TimeScaleDblClick");
  Follow(ControlA.TimeScaleMouseDown, "control TimeScaleMouseDown");
  Follow(ControlA.TimeScaleMouseMove, "control TimeScaleMouseMove");
  Follow(ControlA.TimeScaleMouseUp, "control TimeScaleMouseUp");
  Follow(ControlA.MarkerClick, "control MarkerClick");
  Follow(ControlA.MarkerDblClick, "control MarkerDblClick");
  Follow(ControlA.MarkerMouseDown, "control MarkerMouseDown");
  Follow(ControlA.MarkerMouseMove, "control MarkerMouseMove");
  Follow(ControlA.MarkerMouseUp, "control MarkerMouseUp");
}

}  // namespace mur::viewer
