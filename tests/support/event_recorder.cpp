#include "tests/support/event_recorder.h"

#include <utility>

#include "tests/support/value_text.h"

namespace mur::test {

EventRecorder::EventRecorder(CMURTimeline& TimelineA) {
  using Object = const Ref<IMURTimelineObject>&;
  const auto listen = [&](auto& event, auto handler) { mConnections.push_back(event.Connect(handler)); };
  listen(TimelineA.Clearing, [this] { Note("Clearing"); });
  listen(TimelineA.Cleared, [this] { Note("Cleared"); });
  listen(TimelineA.PropertyChanged,
         [this](StringView name) { Note("PropertyChanged(" + ToUtf8(name) + ")"); });
  listen(TimelineA.TLObjectAdded,
         [this](const Variant& key) { Note("TLObjectAdded(" + ValueText(key) + ")"); });
  listen(TimelineA.TLObjectRemoved, [this](const Variant& key, StringView tag) {
    Note("TLObjectRemoved(" + ValueText(key) + ", " + ValueText(tag) + ")");
  });
  listen(TimelineA.TLObjectAdopted, [this](Object parent, Object child) {
    Note("TLObjectAdopted(" + ValueText(parent) + ", " + ValueText(child) + ")");
  });
  listen(TimelineA.TLObjectOrphaned, [this](Object parent, Object child) {
    Note("TLObjectOrphaned(" + ValueText(parent) + ", " + ValueText(child) + ")");
  });
  listen(TimelineA.TLObjectPropertyChanged, [this](Object object, StringView name, const Variant& value) {
    Note("TLObjectPropertyChanged(" + ValueText(object) + "." + ToUtf8(name) + " = " + ValueText(value) +
         ")");
  });
}

std::string EventRecorder::Take() {
  return std::exchange(mLog, {});
}

void EventRecorder::Note(const std::string& LineA) {
  if (!mLog.empty()) mLog += "; ";
  mLog += LineA;
}

}  // namespace mur::test
