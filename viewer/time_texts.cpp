#include "viewer/time_texts.h"

#include <cmath>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/render/companions/time_text.h>

namespace mur::viewer {

QString FileTimeText(const LoadedFile& FileA, Date TimeA) {
  constexpr std::int32_t kMilliseconds = 3, kTimecode = 4;
  constexpr int kMicroseconds = 6;
  const double seconds = (TimeA.Days() - FileA.day.Days()) * kSecondsPerDay;
  if (FileA.kind == FileKind::ChromeTrace)
    return QStringLiteral("%1 s").arg(QString::number(seconds, 'f', kMicroseconds));
  const Ref<MURTimeText> texts = Make<MURTimeText>();
  return qt::ToQString(texts->FormatSeconds(seconds, FileA.rate > 0 ? kTimecode : kMilliseconds, FileA.rate));
}

QString RangeText(const LoadedFile& FileA, Date FromA, double SecondsA) {
  const Date to = Date::Unchecked(FromA.Days() + SecondsA / kSecondsPerDay);
  return QStringLiteral("%1 \u2013 %2").arg(FileTimeText(FileA, FromA), FileTimeText(FileA, to));
}

QString WorldTimeText(Date TimeA) {
  const bool isDayZero = std::floor(TimeA.Days()) == 0;
  return qt::ToQDateTime(TimeA).toString(isDayZero ? QStringLiteral("HH:mm:ss.zzz")
                                                   : QStringLiteral("yyyy-MM-dd  HH:mm:ss.zzz"));
}

}  // namespace mur::viewer
