#pragma once

#include <murtimeline/render/render_state.h>
#include <murtimeline/render/tooltip_template.h>

namespace mur {

/// What is written on bars and in their tool tips.
class Captions {
 public:
  explicit Captions(const RenderState& StateA) : mState(StateA) {}

  /// The text of one caption kind; empty for a kind that has none, and when an object or service fails.
  String ComposeAutoCaption(const IMURTimelineObject& ObjectA, std::int32_t TypeA) const;
  /// A time as captions show it; empty when the service fails.
  String WorldTimeText(Date TimeA) const;
  /// Whether any site has an automatic kind.
  bool AreAutomatic() const;
  /// Writes every site that has an automatic kind; the others keep what they show.
  void ApplyAutoCaptions(const IMURTimelineObject& ObjectA, ICanvasItem& ItemA) const;
  /// The tool tip of an object.
  String ExpandTooltipTemplate(const IMURTimelineObject& ObjectA);

 private:
  String Compose(const IMURTimelineObject& ObjectA, std::int32_t TypeA) const;
  String FormatWorldTimeText(Date TimeA) const;
  String FormatDurationText(double SecondsA) const;

  const RenderState& mState;
  TooltipTemplate mTooltip;
};

}  // namespace mur
