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

// Frames are rounded down; a date that stands for a whole one may lie a little before it.
QString RangeText(const LoadedFile& FileA, Date FromA, double SecondsA) {
  const double allowance = FileA.rate > 0 ? 1e-5 : 0;
  const auto text = [&](double seconds) {
    return FileTimeText(FileA, Date::Unchecked(FromA.Days() + (seconds + allowance) / kSecondsPerDay));
  };
  return QStringLiteral("%1 \u2013 %2").arg(text(0), text(SecondsA));
}

QString WorldTimeText(Date TimeA) {
  const bool isDayZero = std::floor(TimeA.Days()) == 0;
  return qt::ToQDateTime(TimeA).toString(isDayZero ? QStringLiteral("HH:mm:ss.zzz")
                                                   : QStringLiteral("yyyy-MM-dd  HH:mm:ss.zzz"));
}

}  // namespace mur::viewer
