#pragma once

#include <QTimer>
#include <QUndoStack>
#include <unordered_set>

#include "viewer/window/object_states.h"

namespace mur::viewer {

class TimelinePage;

/// A marker that was moved; times as in Marker.
struct MarkerChange {
  std::size_t marker = 0;  // its place in the file's list
  double before = 0, after = 0;
};

/// Watches a page's document and makes each gesture that moves anything one step to undo: a drag from press
/// to release with all that moved along, a nudge by key, a move of a marker. Markers that stand on an object
/// go with it.
class EditHistory final : public QObject {
  Q_OBJECT

 public:
  /// `PageA` outlives the history.
  explicit EditHistory(TimelinePage& PageA);
  ~EditHistory() override;

  QUndoStack& Steps() { return mSteps; }
  /// The page shows another document: nothing can be undone, and nothing is watched yet.
  void Begin();
  /// From now on moves become steps.
  void Watch();
  /// What was changed since the last step becomes one.
  void Commit();
  /// A marker was moved from there, on the page already.
  void MarkerMoved(std::size_t MarkerA, double BeforeA);

 Q_SIGNALS:
  /// Anything lies elsewhere than before, by a gesture or by undoing or redoing one.
  void Changed();

 private:
  class Step;
  struct Changes {
    std::vector<ObjectChange> objects;
    std::vector<MarkerChange> markers;
  };

  void Note(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyA);
  std::vector<MarkerChange> MoveMarkersWith(const std::vector<ObjectChange>& ObjectsA);
  void Put(const Changes& ChangesA, bool BackA);
  void Push(Changes ChangesA);

  TimelinePage& mPage;
  QUndoStack mSteps;
  QTimer mIdle;  // ends a change that no gesture frames
  ObjectStates mStates;
  std::vector<Ref<IMURTimelineObject>> mTouched;
  std::unordered_set<const IMURTimelineObject*> mIsTouched;
  std::vector<Connection> mConnections;
  bool mPutting = false;
};

}  // namespace mur::viewer
