#include <cmath>

#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/render/companions/scale_texts.h>
#include <murtimeline/render/companions/time_text.h>

namespace mur {
namespace {

constexpr double kFramesPerSecond = 25;
constexpr std::int32_t kRelativeTimes = 1;
constexpr std::int32_t kWithoutThousandths = 2;  // styles hh:mm:ss
constexpr std::int32_t kWithThousandths = 3;     // and hh:mm:ss.mmm
constexpr std::int64_t kMonthsPerYear = 12;
// A time line that starts this close to date 0 counts from there and means no calendar.
constexpr double kDaysAboutZero = 366;

bool HasCalendar(const ScaleSettings& SettingsA) {
  const double end = SettingsA.worldTimeT0.Days() + SettingsA.duration / kSecondsPerDay;
  return SettingsA.worldTimeT0.InRange() && Date::Unchecked(end).InRange() &&
         std::fabs(SettingsA.worldTimeT0.Days()) > kDaysAboutZero;
}

double SecondsOf(std::int64_t TimeA) {
  return static_cast<double>(TimeA) / static_cast<double>(kMillisecondsPerSecond);
}

Date DateOf(std::int64_t TimeA) {
  return Date::Unchecked(static_cast<double>(TimeA) / static_cast<double>(kMillisecondsPerDay));
}

// Empty where the date cannot be written so.
String Formatted(Date DateA, StringView PatternA) {
  String text;
  ResumeNext([&] { text = Regional().Format(DateA, PatternA); });
  return text;
}

StringView CalendarPattern(const TickStep& StepA) {
  if (!StepA.IsCalendar()) return u"ddd d";
  return StepA.months < kMonthsPerYear ? u"mmm" : u"yyyy";
}

std::int64_t TimeOfDay(std::int64_t TimeA) {
  return (TimeA % kMillisecondsPerDay + kMillisecondsPerDay) % kMillisecondsPerDay;
}

}  // namespace

ScaleTexts::ScaleTexts(const ScaleSettings& SettingsA)
    : mSettings(SettingsA),
      mIsRelative(SettingsA.timesOffsetMode == kRelativeTimes),
      mIsCalendar(!mIsRelative && HasCalendar(SettingsA)),
      mOriginSeconds(mIsRelative ? SettingsA.tZero.Seconds() : 0) {}

std::int64_t ScaleTexts::LabelGranularity() const {
  if (!mSettings.formatString.empty()) return kMillisecondsPerSecond;
  switch (mSettings.formatStyle) {
    case 0:
    case 3:
      return 1;
    case 4:
    case 6:
      return kMillisecondsPerSecond / static_cast<std::int64_t>(kFramesPerSecond);
    default:
      return kMillisecondsPerSecond;
  }
}

String ScaleTexts::Label(const TickStep& StepA, std::int64_t TimeA) const {
  const bool namesDays = mIsCalendar && StepA.IsDayOrMore();
  if (!mSettings.formatString.empty() && (!namesDays || LabelsDiffer(StepA, TimeA)))
    return FormattedLabel(TimeA);
  return namesDays ? Formatted(DateOf(TimeA), CalendarPattern(StepA)) : StyledLabel(StepA, TimeA);
}

const TickStep* ScaleTexts::ContextStep(const TickStep& StepA) const {
  static constexpr TickStep kDay{kMillisecondsPerDay}, kMonth{0, 1}, kYear{0, kMonthsPerYear};
  if (!mIsCalendar) return nullptr;
  if (!StepA.IsDayOrMore()) return &kDay;
  if (!StepA.IsCalendar()) return &kMonth;
  return StepA.months < kMonthsPerYear ? &kYear : nullptr;
}

String ScaleTexts::Context(const TickStep& ContextStepA, std::int64_t TimeA, bool BriefA) const {
  if (!ContextStepA.IsCalendar()) return Formatted(DateOf(TimeA), BriefA ? u"Short Date" : u"Long Date");
  if (ContextStepA.months >= kMonthsPerYear) return Formatted(DateOf(TimeA), u"yyyy");
  return Formatted(DateOf(TimeA), BriefA ? u"mmm yyyy" : u"mmmm yyyy");
}

String ScaleTexts::FormattedLabel(std::int64_t TimeA) const {
  String text = Formatted(DateOf(mIsRelative ? std::abs(TimeA) : TimeA), mSettings.formatString);
  if (!mIsRelative || TimeA == 0 || text.empty()) return text;
  return (TimeA < 0 ? u"-" : u"+") + text;
}

// Where every tick stands on a whole second, thousandths would say nothing.
std::int32_t ScaleTexts::StyleFor(const TickStep& StepA) const {
  const bool wholeSeconds = StepA.milliseconds % kMillisecondsPerSecond == 0;
  return mSettings.formatStyle == kWithThousandths && wholeSeconds ? kWithoutThousandths
                                                                   : mSettings.formatStyle;
}

String ScaleTexts::StyledLabel(const TickStep& StepA, std::int64_t TimeA) const {
  const double seconds = SecondsOf(mIsCalendar ? TimeOfDay(TimeA) : TimeA);
  const String text = MURTimeText().FormatSeconds(seconds, StyleFor(StepA), kFramesPerSecond);
  return mIsRelative && TimeA > 0 ? u"+" + text : text;
}

// A format of the time of day alone says the same at every midnight.
bool ScaleTexts::LabelsDiffer(const TickStep& StepA, std::int64_t TimeA) const {
  const std::int64_t next = StepA.TimeOf(StepA.NumberAt(TimeA) + 1);
  return FormattedLabel(TimeA) != FormattedLabel(next);
}

}  // namespace mur
