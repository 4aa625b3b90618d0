#include "viewer/event_log.h"

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

std::string ValueText(const Variant& ValueA) {
  if (const String* text = ValueA.As<String>()) return Quoted(*text);
  if (const Date* date = ValueA.As<Date>()) return ExactWorldTime(*date);
  if (const bool* flag = ValueA.As<bool>()) return *flag ? "True" : "False";
  if (const auto number = ValueA.Number()) return ToUtf8(Regional().NumberToText(*number));
  return KindName(ValueA.Kind());
}

}  // namespace

EventLog::EventLog(CMURTimeline& TimelineA, MURTimelineRender& ControlA, LineSink SinkA)
    : mSink(std::move(SinkA)) {
  FollowTimeline(TimelineA);
  FollowControl(ControlA);
}

void EventLog::FollowTimeline(CMURTimeline& TimelineA) {
  using Object = Ref<IMURTimelineObject>;
  mConnections.push_back(TimelineA.Clearing.Connect([this] { mSink("timeline Clearing"); }));
  mConnections.push_back(TimelineA.Cleared.Connect([this] { mSink("timeline Cleared"); }));
  mConnections.push_back(TimelineA.PropertyChanged.Connect(
      [this](StringView name) { mSink("timeline PropertyChanged " + ToUtf8(name)); }));
  mConnections.push_back(TimelineA.TLObjectAdded.Connect(
      [this](const Variant& key) { mSink("timeline TLObjectAdded " + ValueText(key)); }));
  mConnections.push_back(TimelineA.TLObjectRemoved.Connect([this](const Variant& key, StringView tag) {
    mSink("timeline TLObjectRemoved " + ValueText(key) + " tag " + Quoted(tag));
  }));
  mConnections.push_back(TimelineA.TLObjectAdopted.Connect([this](const Object& parent, const Object& child) {
    mSink("timeline TLObjectAdopted " + Quoted(parent->Key()) + " " + Quoted(child->Key()));
  }));
  mConnections.push_back(
      TimelineA.TLObjectOrphaned.Connect([this](const Object& parent, const Object& child) {
        mSink("timeline TLObjectOrphaned " + Quoted(parent->Key()) + " " + Quoted(child->Key()));
      }));
  mConnections.push_back(TimelineA.TLObjectPropertyChanged.Connect(
      [this](const Object& object, StringView name, const Variant& value) {
        mSink("timeline TLObjectPropertyChanged " + Quoted(object->Key()) + " " + ToUtf8(name) + " = " +
              ValueText(value));
      }));
}

void EventLog::FollowControl(MURTimelineRender& ControlA) {
  mConnections.push_back(ControlA.CursorTimeChange.Connect(
      [this](Date time) { mSink("control CursorTimeChange " + ExactWorldTime(time)); }));
}

}  // namespace mur::viewer
