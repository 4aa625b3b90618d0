#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include <murtimeline/render/companions/time_text.h>

namespace mur {
namespace {

enum TimeTextStyle : std::int32_t {
  kDecimalSeconds = 0,
  kMinutes = 1,
  kHoursMilliseconds = 3,
  kTimecode = 4,
  kDays = 5,
  kFrames = 6,
};

/// Whole seconds, and what is left in smaller units. Doubles hold whole numbers of every size, so nothing
/// overflows.
struct SplitTime {
  double seconds = 0;
  double units = 0;
};

SplitTime Carried(SplitTime TimeA, double UnitsPerSecondA) {
  return TimeA.units < UnitsPerSecondA ? TimeA : SplitTime{TimeA.seconds + 1, 0};
}

SplitTime SplitRounded(double SecondsA, double UnitsPerSecondA) {
  const double whole = std::floor(SecondsA);
  return Carried({whole, std::round((SecondsA - whole) * UnitsPerSecondA)}, UnitsPerSecondA);
}

// A date in seconds carries the rounding of its days; what is this close to a whole frame is that frame.
double FloorOfDate(double ValueA, double NoiseA) {
  return std::floor(ValueA + NoiseA);
}

// In frames; never so much that it would show.
double NoiseOf(double SecondsA, double RateA) {
  return std::min(SecondsA * RateA * 4 * std::numeric_limits<double>::epsilon(), 0.001);
}

SplitTime SplitFrames(double SecondsA, double RateA) {
  const double whole = std::floor(SecondsA);
  if (RateA == 0) return {whole, 0};
  return Carried({whole, FloorOfDate((SecondsA - whole) * RateA, NoiseOf(SecondsA, RateA))}, RateA);
}

double FramesOf(double SecondsA, double RateA) {
  return FloorOfDate(SecondsA * RateA, NoiseOf(SecondsA, RateA));
}

// A whole number with at least `DigitsA` digits.
std::string Digits(double NumberA, std::size_t DigitsA) {
  std::array<char, 400> buffer{};  // the largest double has 309 digits
  const char* end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), NumberA, std::chars_format::fixed, 0).ptr;
  const std::string text(static_cast<const char*>(buffer.data()), end);
  return std::string(DigitsA - std::min(DigitsA, text.size()), '0') + text;
}

double Part(double SecondsA, double UnitA, double CountA) {
  return std::fmod(std::floor(SecondsA / UnitA), CountA);
}

std::string MinutesText(double SecondsA) {
  return Digits(std::floor(SecondsA / 60), 2) + ':' + Digits(std::fmod(SecondsA, 60), 2);
}

std::string ClockText(double HoursA, double SecondsA) {
  return Digits(HoursA, 2) + ':' + Digits(Part(SecondsA, 60, 60), 2) + ':' +
         Digits(std::fmod(SecondsA, 60), 2);
}

std::string HoursText(double SecondsA) {
  return ClockText(std::floor(SecondsA / 3600), SecondsA);
}

std::string DaysText(double SecondsA) {
  return Digits(std::floor(SecondsA / 86400), 1) + ' ' + ClockText(Part(SecondsA, 3600, 24), SecondsA);
}

std::string MagnitudeText(double SecondsA, std::int32_t StyleA, double RateA) {
  const SplitTime milliseconds = SplitRounded(SecondsA, 1000);
  const double rounded = std::round(SecondsA);
  switch (StyleA) {
    case kDecimalSeconds:
      return Digits(milliseconds.seconds, 1) + '.' + Digits(milliseconds.units, 3);
    case kMinutes:
      return MinutesText(rounded);
    case kHoursMilliseconds:
      return HoursText(milliseconds.seconds) + '.' + Digits(milliseconds.units, 3);
    case kTimecode: {
      const SplitTime frames = SplitFrames(SecondsA, RateA);
      return HoursText(frames.seconds) + ':' + Digits(frames.units, 2);
    }
    case kDays:
      return DaysText(rounded);
    case kFrames: {
      const double frames = FramesOf(SecondsA, RateA);
      return std::isfinite(frames) ? Digits(frames, 1) : std::string();
    }
    default:
      return HoursText(rounded);
  }
}

bool ShowsZero(const std::string& TextA) {
  return TextA.find_first_of("123456789") == std::string::npos;
}

}  // namespace

String MURTimeText::FormatSeconds(double SecondsA, std::int32_t StyleA, double FramesPerSecondA) const {
  if (!std::isfinite(SecondsA)) return {};
  const double rate = FramesPerSecondA > 0 && std::isfinite(FramesPerSecondA) ? FramesPerSecondA : 0;
  const std::string text = MagnitudeText(std::fabs(SecondsA), StyleA, rate);
  return FromAscii(SecondsA < 0 && !ShowsZero(text) ? '-' + text : text);
}

}  // namespace mur
