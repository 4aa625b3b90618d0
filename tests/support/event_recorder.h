#pragma once

#include <string>
#include <vector>

#include <murtimeline/automation/event.h>
#include <murtimeline/model/timeline.h>

namespace mur::test {

/// Listens to every event of a time line. Its log reads as text:
/// "TLObjectAdded('G'); PropertyChanged(NTrackKeys); TLObjectPropertyChanged(G.Tag = 'x')".
class EventRecorder {
 public:
  explicit EventRecorder(CMURTimeline& TimelineA);

  /// The log so far, which then is empty.
  std::string Take();

 private:
  void Note(const std::string& LineA);

  std::string mLog;
  std::vector<Connection> mConnections;
};

}  // namespace mur::test
