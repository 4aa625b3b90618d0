#pragma once

#include <span>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/scale_settings.h>
#include <murtimeline/render/companions/tick_ladder.h>

namespace mur {

/// What a time scale counts and how its ticks are written.
///
/// Times about the present are calendar times: their ticks stand at round times of the calendar, the labels
/// show the time of day, or the day, month or year where ticks are that far apart, and the context above them
/// names the day, month or year that they belong to. Relative times, times about date 0 and times beyond the
/// date range are plain durations: their ticks stand at round distances from zero and there is no context.
///
/// Tick times are milliseconds from `OriginSeconds`.
class MUR_API ScaleTexts {
 public:
  explicit ScaleTexts(const ScaleSettings& SettingsA);

  /// World seconds of tick time 0.
  double OriginSeconds() const { return mOriginSeconds; }
  std::span<const TickStep> Ladder() const { return mIsCalendar ? CalendarLadder() : DurationLadder(); }
  /// Labels tell times apart that differ by this many milliseconds and multiples of it.
  std::int64_t LabelGranularity() const;

  /// The label of a tick; empty when it cannot be written.
  String Label(const TickStep& StepA, std::int64_t TimeA) const;

  /// The spans that the context row names when ticks are a step apart; none when there is no context.
  const TickStep* ContextStep(const TickStep& StepA) const;
  /// `BriefA`: as short as it can be said.
  String Context(const TickStep& ContextStepA, std::int64_t TimeA, bool BriefA) const;

 private:
  String FormattedLabel(std::int64_t TimeA) const;
  std::int32_t StyleFor(const TickStep& StepA) const;
  String StyledLabel(const TickStep& StepA, std::int64_t TimeA) const;
  bool LabelsDiffer(const TickStep& StepA, std::int64_t TimeA) const;

  const ScaleSettings& mSettings;
  bool mIsRelative;
  bool mIsCalendar;
  double mOriginSeconds;
};

}  // namespace mur
