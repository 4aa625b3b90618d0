#include "viewer/window/edit_history.h"

#include <QScopedValueRollback>
#include <array>
#include <utility>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/window/timeline_page.h"

namespace mur::viewer {
namespace {

bool IsTime(StringView PropertyA) {
  static constexpr std::array<StringView, 4> kNames{u"WorldTimeT0", u"WorldtimeT0", u"Offset", u"Duration"};
  return std::ranges::find(kNames, PropertyA) != kNames.end();
}

double SecondsMoved(const ObjectChange& ChangeA) {
  return (ChangeA.after.start.Days() - ChangeA.before.start.Days()) * kSecondsPerDay;
}

}  // namespace

// One step. It is done already when it is pushed.
class EditHistory::Step final : public QUndoCommand {
 public:
  Step(EditHistory& HistoryA, const QString& TextA, Changes ChangesA)
      : QUndoCommand(TextA), mHistory(HistoryA), mChanges(std::move(ChangesA)) {}

  void undo() override { mHistory.Put(mChanges, true); }
  void redo() override {
    if (std::exchange(mIsDone, false)) return;
    mHistory.Put(mChanges, false);
  }

 private:
  EditHistory& mHistory;
  Changes mChanges;
  bool mIsDone = true;
};

EditHistory::EditHistory(TimelinePage& PageA) : mPage(PageA) {
  mIdle.setSingleShot(true);
  mIdle.setInterval(0);
  connect(&mIdle, &QTimer::timeout, this, [this] {
    qt::GuardEvent([this] {
      if (!mPage.Timeline().control()->IsDragging()) Commit();
    });
  });
  connect(&mPage.Timeline(), &qt::TimelineWidget::tlObjectMouseUp, this,
          [this] { qt::GuardEvent([this] { Commit(); }); });
}

EditHistory::~EditHistory() = default;

void EditHistory::Begin() {
  mConnections.clear();
  mTouched.clear();
  mIsTouched.clear();
  mStates.Clear();
  mSteps.clear();
}

void EditHistory::Watch() {
  if (!mPage.Document() || !mConnections.empty()) return;
  const Ref<CMURTimeline> timeline = mPage.Document()->timeline.Get();
  mStates.Take(*timeline);
  mConnections.push_back(timeline->TLObjectPropertyChanged.Connect(
      [this](const auto& object, StringView name, const Variant&) { Note(object, name); }));
}

void EditHistory::Note(const Ref<IMURTimelineObject>& ObjectA, StringView PropertyA) {
  if (mPutting || !IsTime(PropertyA) || !mIsTouched.insert(ObjectA.Get()).second) return;
  mTouched.push_back(ObjectA);
  mIdle.start();
}

void EditHistory::Commit() {
  if (mTouched.empty()) return;
  mIsTouched.clear();
  Changes changes;
  changes.objects = mStates.TakeChanges(std::exchange(mTouched, {}));
  if (changes.objects.empty()) return;
  changes.markers = MoveMarkersWith(changes.objects);
  Push(std::move(changes));
}

void EditHistory::MarkerMoved(std::size_t MarkerA, double BeforeA) {
  const double now = mPage.Document()->file.markers[MarkerA].time;
  if (now != BeforeA) Push({{}, {{MarkerA, BeforeA, now}}});
}

std::vector<MarkerChange> EditHistory::MoveMarkersWith(const std::vector<ObjectChange>& ObjectsA) {
  std::vector<MarkerChange> moved;
  const auto& markers = mPage.Document()->file.markers;
  if (markers.empty()) return moved;
  std::unordered_map<String, double> distances;
  for (const ObjectChange& change : ObjectsA) distances[change.object->Key()] = SecondsMoved(change);
  for (std::size_t i = 0; i < markers.size(); ++i) {
    const auto distance = distances.find(markers[i].owner);
    if (markers[i].owner.empty() || distance == distances.end() || distance->second == 0) continue;
    moved.push_back({i, markers[i].time, markers[i].time + distance->second});
    mPage.MoveMarker(i, moved.back().after);
  }
  return moved;
}

void EditHistory::Push(Changes ChangesA) {
  const QString name =
      ChangesA.objects.empty()
          ? qt::ToQString(mPage.Document()->file.markers[ChangesA.markers.front().marker].name)
          : qt::ToQString(ChangesA.objects.front().object->Tag());
  constexpr int kLongest = 40;
  const QString text = QStringLiteral("Move of \u201c%1\u201d").arg(name.simplified().left(kLongest));
  mSteps.push(new Step(*this, text, std::move(ChangesA)));
  Q_EMIT Changed();
}

void EditHistory::Put(const Changes& ChangesA, bool BackA) {
  {
    const QScopedValueRollback putting(mPutting, true);
    BackA ? PutBefore(ChangesA.objects) : PutAfter(ChangesA.objects);
    for (const MarkerChange& change : ChangesA.markers)
      mPage.MoveMarker(change.marker, BackA ? change.before : change.after);
  }
  std::vector<Ref<IMURTimelineObject>> objects;
  for (const ObjectChange& change : ChangesA.objects) objects.push_back(change.object);
  mStates.TakeChanges(objects);
  Q_EMIT Changed();
}

}  // namespace mur::viewer
