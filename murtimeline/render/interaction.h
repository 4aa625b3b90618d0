#pragma once

#include <optional>
#include <vector>

#include <murtimeline/automation/event.h>
#include <murtimeline/render/object_highlight.h>
#include <murtimeline/render/time_axis.h>
#include <murtimeline/render/timeline_render.h>

namespace mur {

/// Turns what the canvas reports of the pointer into the control's events, selects objects by clicks and
/// drags bars and the cursor along the time axis.
///
/// Each handler ends quietly at the first failing call, without its event: an item whose key names no object
/// of the time line raises none. What is dragged shows its time on the canvas meanwhile.
class Interaction {
 public:
  /// The MURTimelineClickType flags of one click, by the button that was pressed.
  struct ClickTypes {
    std::int32_t left, middle, right;
  };

  Interaction(MURTimelineRender& OwnerA, RenderState& StateA, ObjectHighlight& HighlightA, TimeAxis& AxisA)
      : mOwner(OwnerA), mState(StateA), mHighlight(HighlightA), mAxis(AxisA), mCaptions(StateA) {}

  /// Listens to the canvas of the state.
  void Attach();

  bool IsDragging() const { return mDragActive; }
  /// See MURTimelineRender::CancelDrag.
  bool CancelDrag();

 private:
  using ObjectRef = Ref<IMURTimelineObject>;
  using ItemRef = Ref<ICanvasItem>;

  /// What is dragged, and where it was taken up.
  struct Taken {
    ObjectRef object;  // none for the cursor
    Date time;
  };

  void OnItemMouseDown(const ItemRef& ItemA, std::int16_t& ButtonA, std::int16_t& ShiftA, float& XA,
                       float& YA);
  void OnItemMouseMove(const ItemRef& ItemA, std::int16_t& ButtonA, std::int16_t& ShiftA, float& XA,
                       float& YA);
  void OnItemMouseUp(const ItemRef& ItemA, std::int16_t& ButtonA, std::int16_t& ShiftA, float& XA, float& YA);
  void OnItemClick(const ItemRef& ItemA, const ClickTypes& TypesA,
                   const Event<const ObjectRef&>& ObjectEventA, const Event<StringView>& CursorEventA);
  ObjectRef SubjectOf(const ICanvasItem& ItemA) const;
  std::int32_t ClickType(const ClickTypes& TypesA) const;
  void DragTo(const ICanvasItem& ItemA, const ObjectRef& ObjectA, float XA);
  void DragCursor(const ICanvasItem& ItemA, float XA);
  void DragBar(IMURTimelineObject& ObjectA, float XA) const;
  void ShowTime(const ItemRef& ItemA, const ObjectRef& ObjectA) const;
  void HideTime() const;

  // Raises the event of the bar or the cursor that the item stands for.
  template <class ObjectEvent, class CursorEvent, class... Arguments>
  void RaiseFor(const ObjectRef& ObjectA, const ObjectEvent& ObjectEventA, const CursorEvent& CursorEventA,
                Arguments&... ArgumentsA) const {
    if (ObjectA)
      ObjectEventA.Raise(ObjectA, ArgumentsA...);
    else
      CursorEventA.Raise(kCursorKey, ArgumentsA...);
  }

  // Connects a handler that keeps the control; its failure ends there.
  template <class... Arguments, class Handler>
  void Listen(Event<Arguments...>& EventA, Handler HandlerA);
  // The same for a report on an item, which is kept as well; one without an item is none.
  template <class ItemEvent, class Handler>
  void ListenToItems(ItemEvent& EventA, Handler HandlerA);

  MURTimelineRender& mOwner;
  RenderState& mState;
  ObjectHighlight& mHighlight;
  TimeAxis& mAxis;
  Captions mCaptions;
  bool mDragActive = false;
  float mMouseX = 0;              // of the last press on an item, in the item's own coordinates
  std::int16_t mMouseButton = 0;  // of the last press on an item
  std::optional<Taken> mTaken;
  std::vector<Connection> mConnections;
};

}  // namespace mur
