#include "viewer/readers/cue_times.h"

#include "viewer/readers/read_error.h"
#include "viewer/readers/text_position.h"

namespace mur::viewer {

bool IsCueTiming(const QString& LineA) {
  return LineA.contains(QLatin1String("-->"));
}

Cue ReadCueTimes(const QRegularExpression& TimingA, const QString& LineA, std::size_t LineNumberA) {
  const QRegularExpressionMatch match = TimingA.match(LineA);
  if (!match.hasMatch()) FailInLine(LineNumberA, "the times of this cue cannot be read");
  const auto seconds = [&](int first) {
    return CueSeconds(match.capturedView(first), match.capturedView(first + 1), match.capturedView(first + 2),
                      match.capturedView(first + 3));
  };
  Cue cue{seconds(1), seconds(5), {}};
  if (cue.end < cue.start) FailInLine(LineNumberA, "this cue ends before it starts");
  return cue;
}

void FailInLine(std::size_t LineNumberA, const char* ReasonA) {
  throw ReadError(PlaceText(LineNumberA + 1, 1), ReasonA);
}

}  // namespace mur::viewer
