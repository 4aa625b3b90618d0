#pragma once

#include <cstdint>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// Mouse buttons: the bits of a Button argument.
inline constexpr std::int16_t kLeftButton = 1;
inline constexpr std::int16_t kRightButton = 2;
inline constexpr std::int16_t kMiddleButton = 4;

/// Modifier keys: the bits of a Shift argument.
inline constexpr std::int16_t kShiftKey = 1;
inline constexpr std::int16_t kControlKey = 2;
inline constexpr std::int16_t kAltKey = 4;

/// One report of the pointer, as a face hands it on.
struct MUR_API PointerInput {
  PointF at;                // pixels of the child control
  std::int16_t button = 0;  // what was pressed or released; for a move all that is held
  std::int16_t shift = 0;   // modifier keys
};

/// What the pointer looks like over a child control.
enum class PointerShape {
  Standard,
  Points,   // at something that can be clicked
  CanMove,  // over something that can be dragged along the time axis
  Moves,    // while that is dragged
};

/// Takes the pointer of a child control. A face reports every press, move and release, those included that
/// come from outside the child while a button that was pressed there is held.
class MUR_API PointerTarget {
 public:
  virtual void PointerPressed(const PointerInput& InputA) = 0;
  /// The second press of a double click, by the rules of the platform, in place of PointerPressed.
  virtual void PointerDoublePressed(const PointerInput& InputA) = 0;
  virtual void PointerMoved(const PointerInput& InputA) = 0;
  virtual void PointerReleased(const PointerInput& InputA) = 0;
  /// The pointer is somewhere else.
  virtual void PointerLeft() = 0;
  /// Held buttons will not be reported any more: the child was hidden, disabled, or lost the pointer to
  /// another window. What was under way ends as if they were released where the pointer was last, without a
  /// click.
  virtual void PointerLost() = 0;

 protected:
  ~PointerTarget() = default;
};

/// The State of a drag that is over a child control.
inline constexpr std::int16_t kDragEnters = 0;
inline constexpr std::int16_t kDragLeaves = 1;
inline constexpr std::int16_t kDragIsOver = 2;

/// What a drop would do or did: the bits of an Effect argument.
inline constexpr std::int32_t kDropNone = 0;
inline constexpr std::int32_t kDropCopy = 1;
inline constexpr std::int32_t kDropMove = 2;

/// Something that the platform's drag and drop brings; listeners may change every field.
struct MUR_API DragInput {
  Ref<Object> data;  // of the face's own class
  std::int32_t effect = kDropNone;
  PointerInput pointer;
};

/// Takes what is dragged over a child control from elsewhere.
class MUR_API DropTarget {
 public:
  /// `InputA.effect` comes back as what a drop there would do.
  virtual void DraggedOver(DragInput& InputA, std::int16_t StateA) = 0;
  /// `InputA.effect` comes back as what was done.
  virtual void Dropped(DragInput& InputA) = 0;

 protected:
  ~DropTarget() = default;
};

}  // namespace mur
