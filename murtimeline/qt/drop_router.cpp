#include <QDropEvent>
#include <utility>

#include <murtimeline/qt/drop_router.h>
#include <murtimeline/qt/pointer_router.h>

namespace mur::qt {
namespace {

std::int32_t EffectOf(Qt::DropAction ActionA) {
  if (ActionA == Qt::CopyAction) return kDropCopy;
  return ActionA == Qt::MoveAction ? kDropMove : kDropNone;
}

// An effect of several bits leaves the choice to the platform.
Qt::DropAction ActionOf(std::int32_t EffectA, const QDropEvent& EventA) {
  if ((EffectA & EffectOf(EventA.proposedAction())) != 0) return EventA.proposedAction();
  if ((EffectA & kDropCopy) != 0) return Qt::CopyAction;
  return (EffectA & kDropMove) != 0 ? Qt::MoveAction : Qt::IgnoreAction;
}

// Data that can be read while it lives.
class OpenData {
 public:
  OpenData(Ref<DraggedData> DataA, const QMimeData* SourceA) : mData(std::move(DataA)) {
    mData->Open(SourceA);
  }
  ~OpenData() { mData->Close(); }
  OpenData(const OpenData&) = delete;
  OpenData& operator=(const OpenData&) = delete;

 private:
  Ref<DraggedData> mData;
};

void Answer(QDropEvent& EventA, std::int32_t EffectA) {
  const Qt::DropAction action = ActionOf(EffectA, EventA);
  EventA.setDropAction(action);
  EventA.setAccepted(action != Qt::IgnoreAction);
}

}  // namespace

bool DropRouter::Handle(QEvent& EventA) {
  switch (EventA.type()) {
    case QEvent::DragEnter:
      mData = Make<DraggedData>();
      DragOver(static_cast<QDropEvent&>(EventA), kDragEnters);
      return true;
    case QEvent::DragMove:
      DragOver(static_cast<QDropEvent&>(EventA), kDragIsOver);
      return true;
    case QEvent::DragLeave:
      Leave();
      return true;
    case QEvent::Drop:
      Drop(static_cast<QDropEvent&>(EventA));
      return true;
    default:
      return false;
  }
}

DragInput DropRouter::InputOf(const QDropEvent& EventA) {
  if (!mData) mData = Make<DraggedData>();
  const QPointF at = EventA.position();
  mLast = {{static_cast<float>(at.x()), static_cast<float>(at.y())},
           ButtonsOf(EventA.buttons()),
           ShiftOf(EventA.modifiers())};
  return {mData, EffectOf(EventA.proposedAction()), mLast};
}

void DropRouter::DragOver(QDropEvent& EventA, std::int16_t StateA) {
  EventA.ignore();
  if (mCanvas.OLEDropMode() == 0) return;
  DragInput input = InputOf(EventA);
  const OpenData open(mData, EventA.mimeData());
  mCanvas.DraggedOver(input, StateA);
  Answer(EventA, input.effect);
}

void DropRouter::Leave() {
  const Ref<DraggedData> data = std::exchange(mData, {});
  if (!data) return;
  DragInput input{data, kDropNone, mLast};
  mCanvas.DraggedOver(input, kDragLeaves);
}

void DropRouter::Drop(QDropEvent& EventA) {
  EventA.ignore();
  if (mCanvas.OLEDropMode() == 0) return;
  DragInput input = InputOf(EventA);
  const OpenData open(std::exchange(mData, {}), EventA.mimeData());
  mCanvas.Dropped(input);
  Answer(EventA, input.effect);
}

}  // namespace mur::qt
