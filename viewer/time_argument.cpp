#include "viewer/time_argument.h"

#include <QDateTime>
#include <QRegularExpression>
#include <cmath>

namespace mur::viewer {
namespace {

constexpr double kUsualRate = 25;

std::optional<TimeArgument> ParseClockTime(const QString& TextA) {
  static const QRegularExpression form(
      QStringLiteral(R"(^(\d{1,4}):([0-5]?\d):([0-5]?\d)(?:(\.\d{1,9})|:(\d{1,3}))?$)"));
  const QRegularExpressionMatch match = form.match(TextA);
  if (!match.hasMatch()) return std::nullopt;
  const double seconds =
      match.captured(1).toDouble() * 3600 + match.captured(2).toDouble() * 60 + match.captured(3).toDouble();
  return ClockTime{seconds + match.captured(4).toDouble(), match.captured(5).toDouble()};
}

std::optional<TimeArgument> ParseDateTime(const QString& TextA) {
  const QDateTime time = QDateTime::fromString(TextA, Qt::ISODateWithMs);
  if (!time.isValid()) return std::nullopt;
  static const QDate epoch(1899, 12, 30);
  return Date::Unchecked(static_cast<double>(epoch.daysTo(time.date())) +
                         time.time().msecsSinceStartOfDay() / (kSecondsPerDay * 1000));
}

}  // namespace

std::optional<TimeArgument> ParseTimeArgument(const QString& TextA) {
  bool isNumber = false;
  const double seconds = TextA.toDouble(&isNumber);
  if (isNumber && std::isfinite(seconds)) return SecondsFromStart{seconds};
  if (const auto clock = ParseClockTime(TextA)) return clock;
  return ParseDateTime(TextA);
}

Date ResolveTime(const TimeArgument& TimeA, Date DayA, Date StartA, double RateA) {
  if (const Date* date = std::get_if<Date>(&TimeA)) return Date::FromDays(date->Days());
  if (const auto* offset = std::get_if<SecondsFromStart>(&TimeA)) return AddSeconds(StartA, offset->seconds);
  const auto& clock = std::get<ClockTime>(TimeA);
  return AddSeconds(DayA, clock.seconds + clock.frames / (RateA > 0 ? RateA : kUsualRate));
}

}  // namespace mur::viewer
