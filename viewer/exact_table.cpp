#include "viewer/exact_table.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

#include <murtimeline/model/timeline_media.h>

namespace mur::viewer {
namespace {

// The shortest text that reads back as the same number.
std::string FullNumber(double ValueA) {
  std::array<char, 32> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), ValueA).ptr};
}

template <class... Values>
std::string Formatted(const char* FormatA, Values... ValuesA) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), FormatA, ValuesA...);
  return text.data();
}

// Frames, whole where they are meant to be: seconds are a rounded quotient.
std::string Frames(double SecondsA, double RateA) {
  if (RateA <= 0) return "-";
  const double frames = SecondsA * RateA;
  const double whole = std::round(frames);
  return std::abs(frames - whole) < 1e-6 ? FullNumber(whole) : Formatted("%.6f", frames);
}

std::string OnOneLine(String TextA) {
  for (char16_t& unit : TextA)
    if (unit < u' ') unit = u' ';
  return ToUtf8(TextA);
}

const char* KindText(const IMURTimelineObject& ObjectA) {
  switch (ObjectA.ObjectType()) {
    case murtlotGroup:
      return "group";
    case murtlotMedia:
      return "media";
    default:
      return "scalar";
  }
}

std::string TableLine(const IMURTimelineObject& ObjectA, double RateA) {
  const auto* clip = dynamic_cast<const CMURTimelineMedia*>(&ObjectA);
  const double duration = ObjectA.Duration();
  std::string line = OnOneLine(ObjectA.Key()) + '\t' + KindText(ObjectA);
  line += '\t' + (clip ? FullNumber(clip->CutIn()) : "-");
  line += '\t' + (clip ? Frames(clip->CutIn(), RateA) : "-");
  line += '\t' + FullNumber(duration) + '\t' + Frames(duration, RateA);
  return line + '\t' + ExactWorldTime(ObjectA.WorldTimeT0());
}

}  // namespace

std::string ExactWorldTime(Date TimeA) {
  using std::chrono::year_month_day;
  constexpr long long kMicrosecondsPerDay = 86'400'000'000;
  constexpr auto epoch = std::chrono::sys_days(std::chrono::year(1899) / 12 / 30);
  double day = std::floor(TimeA.Days());
  long long time = std::llround((TimeA.Days() - day) * static_cast<double>(kMicrosecondsPerDay));
  if (time == kMicrosecondsPerDay) {
    time = 0;
    ++day;
  }
  const year_month_day date(epoch + std::chrono::days(static_cast<int>(day)));
  const long long seconds = time / 1'000'000;
  return Formatted("%04d-%02u-%02u ", static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                   static_cast<unsigned>(date.day())) +
         Formatted("%02lld:%02lld:%02lld.%06lld", seconds / 3600, seconds / 60 % 60, seconds % 60,
                   time % 1'000'000);
}

void WriteExactTable(const CMURTimeline& TimelineA, double RateA, const LineSink& SinkA) {
  SinkA("Key\tKind\tCutIn (s)\tCutIn (frames)\tDuration (s)\tDuration (frames)\tWorldTimeT0");
  auto members = TimelineA.NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next()) SinkA(TableLine(*member, RateA));
}

}  // namespace mur::viewer
