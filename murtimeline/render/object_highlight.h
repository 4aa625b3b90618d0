#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <murtimeline/render/bar_drawing.h>
#include <murtimeline/render/highlight_memory.h>
#include <murtimeline/render/known_configs.h>

namespace mur {

/// Which bars show the highlight colour of their configuration in place of its back colour.
///
/// Each pass sets the colour of every bar. After a pass over a time line of our own objects it remembers
/// their spans and what it wrote. As long as nobody else has coloured, added or removed bars and no
/// configuration has changed, the next pass looks at the spans alone and writes where a colour changes. Any
/// doubt ends in a pass over all objects.
class ObjectHighlight final : private SpanWatcher {
 public:
  ObjectHighlight(RenderState& StateA, BarDrawing& DrawingA)
      : mState(StateA), mDrawing(DrawingA), mConfigs(DrawingA.Configs()) {}

  /// Those of the objects that span the cursor's time, ends included, or none when automatic highlighting is
  /// off; does nothing then unless forced. Raises no error.
  void RefreshAtCursor(bool ForceA);
  /// That of the object with this key, letter case included, and no other. Raises no error.
  void ShowSelection(StringView KeyA);

 private:
  using ObjectRef = Ref<IMURTimelineObject>;

  void AboutToChange(const IMURTimelineObject& ObjectA, const IMURTLObjectEventSink& SinkA) noexcept override;

  template <class IsHighlighted>
  void RecolorAll(IsHighlighted&& IsHighlightedA);
  bool RecolorChangedAtCursor();
  bool RecolorChangedTo(StringView KeyA);
  template <class WordOf>
  bool WriteFlipped(WordOf&& WordOfA);
  bool WriteChanged();
  bool Write(std::size_t IndexA);

  void Watch(const CMURTimeline& TimelineA);
  bool CatchUp();
  bool IsUndisturbed() const;
  void Forget();
  const CMURTLRenderConfig& ConfigOf(const IMURTimelineObject& ObjectA);
  void SetBackColor(const IMURTimelineObject& ObjectA, OleColor ColorA);

  RenderState& mState;
  BarDrawing& mDrawing;
  KnownConfigs mConfigs;

  HighlightMemory mMemory;
  bool mRemembers = false;          // the memory is right, but for members that changed since
  std::optional<Date> mCursorTime;  // at which it was formed; none when it was a selection
  std::uint64_t mPass = 0;          // counts passes: one may run within another

  // What the memory holds for.
  const CMURTimeline* mTimeline = nullptr;  // only to be compared
  std::uint64_t mMembersRevision = 0;
  std::uint64_t mColorRevision = 0;

  std::vector<const IMURTimelineObject*> mChanged;  // members, as long as the revision holds
  std::vector<std::size_t> mChangedAt;              // their places in the memory
};

}  // namespace mur
