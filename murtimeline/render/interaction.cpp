#include <utility>

#include <murtimeline/automation/guard.h>
#include <murtimeline/render/interaction.h>

namespace mur {
namespace {

constexpr Interaction::ClickTypes kClicks{etlcltLeftClick, etlcltMiddleClick, etlcltRightClick};
constexpr Interaction::ClickTypes kDblClicks{etlcltLeftDblClick, etlcltMiddleDblClick, etlcltRightDblClick};

}  // namespace

template <class... Arguments, class Handler>
void Interaction::Listen(Event<Arguments...>& EventA, Handler HandlerA) {
  mConnections.push_back(EventA.Connect([this, HandlerA](Arguments... arguments) {
    const Ref<MURTimelineRender> keep(&mOwner);
    ResumeNext([&] { HandlerA(arguments...); });
  }));
}

template <class ItemEvent, class Handler>
void Interaction::ListenToItems(ItemEvent& EventA, Handler HandlerA) {
  Listen(EventA, [HandlerA](const ItemRef& item, auto&... arguments) {
    if (const ItemRef held(item.Get()); held) HandlerA(held, arguments...);
  });
}

void Interaction::Attach() {
  const auto forward = [this]<class... Arguments>(Event<Arguments...>& from, Event<Arguments...>& to) {
    Listen(from, [&to](Arguments... arguments) { to.Raise(arguments...); });
  };
  // Reports on an item, told as reports on the bar's object or the cursor.
  const auto translate = [this](auto& from, const auto& object, const auto& cursor) {
    ListenToItems(from, [this, &object, &cursor](const ItemRef& item, auto&... arguments) {
      RaiseFor(SubjectOf(*item), object, cursor, arguments...);
    });
  };
  IGraphicCanvas& canvas = mState.Canvas();
  MURTimelineRender& owner = mOwner;
  forward(canvas.Click, owner.Click);
  forward(canvas.DblClick, owner.DblClick);
  forward(canvas.MouseDown, owner.MouseDown);
  forward(canvas.MouseMove, owner.MouseMove);
  forward(canvas.MouseUp, owner.MouseUp);
  forward(canvas.OLEDragDrop, owner.OLEDragDrop);
  forward(canvas.OLEDragOver, owner.OLEDragOver);
  translate(canvas.ItemOLEDragDrop, owner.TLObjectOLEDragDrop, owner.CursorOLEDragDrop);
  translate(canvas.ItemOLEDragOver, owner.TLObjectOLEDragOver, owner.CursorOLEDragOver);
  ListenToItems(canvas.ItemClick, [this](const ItemRef& item) {
    OnItemClick(item, kClicks, mOwner.TLObjectClick, mOwner.CursorClick);
  });
  ListenToItems(canvas.ItemDblClick, [this](const ItemRef& item) {
    OnItemClick(item, kDblClicks, mOwner.TLObjectDblClick, mOwner.CursorDblClick);
  });
  ListenToItems(canvas.ItemMouseDown,
                [this](const ItemRef& item, auto&... pointer) { OnItemMouseDown(item, pointer...); });
  ListenToItems(canvas.ItemMouseMove,
                [this](const ItemRef& item, auto&... pointer) { OnItemMouseMove(item, pointer...); });
  ListenToItems(canvas.ItemMouseUp,
                [this](const ItemRef& item, auto&... pointer) { OnItemMouseUp(item, pointer...); });
}

// The object of a bar, none for the cursor. A bar whose key names no object is an error, which ends the
// handler.
Interaction::ObjectRef Interaction::SubjectOf(const ICanvasItem& ItemA) const {
  if (ItemA.Kind() == kCursorItem) return {};
  ObjectRef object = mState.timeline ? mState.timeline->ItemByKey(ItemA.Key()) : ObjectRef();
  if (!object) throw AutomationError(ErrorCode::ObjectNotSet);
  return object;
}

void Interaction::OnItemMouseDown(const ItemRef& ItemA, std::int16_t& ButtonA, std::int16_t& ShiftA,
                                  float& XA, float& YA) {
  const bool takesUp = mState.allowObjectDragging && (ButtonA & kLeftButton) != 0;
  if (takesUp) mDragActive = true;
  mMouseX = XA;
  mMouseButton = ButtonA;
  const ObjectRef object = SubjectOf(*ItemA);
  if (takesUp) mTaken = Taken{object, object ? object->WorldTimeT0() : mState.cursorTime};
  RaiseFor(object, mOwner.TLObjectMouseDown, mOwner.CursorMouseDown, ButtonA, ShiftA, XA, YA);
}

void Interaction::OnItemMouseMove(const ItemRef& ItemA, std::int16_t& ButtonA, std::int16_t& ShiftA,
                                  float& XA, float& YA) {
  const ObjectRef object = SubjectOf(*ItemA);
  if (mDragActive) {
    DragTo(*ItemA, object, XA);
    ShowTime(ItemA, object);
  }
  RaiseFor(object, mOwner.TLObjectMouseMove, mOwner.CursorMouseMove, ButtonA, ShiftA, XA, YA);
}

// The drag ends with the release, whatever fails: an item that is off the canvas or without an object must
// not leave one behind.
void Interaction::OnItemMouseUp(const ItemRef& ItemA, std::int16_t& ButtonA, std::int16_t& ShiftA, float& XA,
                                float& YA) {
  const bool wasDragged = std::exchange(mDragActive, false);
  mTaken.reset();
  HideTime();
  const ObjectRef object = SubjectOf(*ItemA);
  if (wasDragged) DragTo(*ItemA, object, XA);
  RaiseFor(object, mOwner.TLObjectMouseUp, mOwner.CursorMouseUp, ButtonA, ShiftA, XA, YA);
}

void Interaction::OnItemClick(const ItemRef& ItemA, const ClickTypes& TypesA,
                              const Event<const ObjectRef&>& ObjectEventA,
                              const Event<StringView>& CursorEventA) {
  const ObjectRef object = SubjectOf(*ItemA);
  if (object && (mState.autoSelectMode & ClickType(TypesA)) != 0) {
    mState.selectedKey = ItemA->Key();
    mHighlight.ShowSelection(object->KeyText().View());
  }
  RaiseFor(object, ObjectEventA, CursorEventA);
}

std::int32_t Interaction::ClickType(const ClickTypes& TypesA) const {
  if (mMouseButton & kLeftButton) return TypesA.left;
  if (mMouseButton & kMiddleButton) return TypesA.middle;
  return mMouseButton & kRightButton ? TypesA.right : etlcltNoClicks;
}

void Interaction::DragTo(const ICanvasItem& ItemA, const ObjectRef& ObjectA, float XA) {
  if (ObjectA)
    DragBar(*ObjectA, XA);
  else
    DragCursor(ItemA, XA);
  mHighlight.RefreshAtCursor(false);
}

void Interaction::DragCursor(const ICanvasItem& ItemA, float XA) {
  const double seconds = mState.companions.timeMapper->XToSeconds(ItemA.Left() + XA);
  mAxis.PutCursorTime(Date::FromDays(seconds / kSecondsPerDay));
}

// The bar moves under the pointer, so that its distance from the place of the press is the travel since the
// step before.
void Interaction::DragBar(IMURTimelineObject& ObjectA, float XA) const {
  const ITimeMapper& mapper = *mState.companions.timeMapper;
  const double delta = mapper.XToSeconds(XA) - mapper.XToSeconds(mMouseX);
  ObjectA.SetWorldTimeT0(Date::FromDays(ObjectA.WorldTimeT0().Days() + delta / kSecondsPerDay));
}

// A host may have ended the drag in one of its events.
void Interaction::ShowTime(const ItemRef& ItemA, const ObjectRef& ObjectA) const {
  if (!mDragActive) return;
  ResumeNext([&] {
    const Date time = ObjectA ? ObjectA->WorldTimeT0() : mState.cursorTime;
    mState.Canvas().ShowDragLabel(ItemA, mCaptions.WorldTimeText(time));
  });
}

void Interaction::HideTime() const {
  ResumeNext([&] { mState.Canvas().ShowDragLabel({}, {}); });
}

bool Interaction::CancelDrag() {
  const auto taken = std::exchange(mTaken, std::nullopt);
  const bool wasDragged = std::exchange(mDragActive, false);
  HideTime();
  if (!wasDragged || !taken) return false;
  ResumeNext([&] {
    if (taken->object)
      taken->object->SetWorldTimeT0(taken->time);
    else
      mAxis.PutCursorTime(taken->time);
  });
  mHighlight.RefreshAtCursor(false);
  return true;
}

}  // namespace mur
