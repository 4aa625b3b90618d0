#include "viewer/readers/subrip_reader.h"

#include <QRegularExpression>
#include <QStringList>

#include "viewer/readers/cue_text.h"
#include "viewer/readers/cue_times.h"
#include "viewer/readers/text_decoding.h"

namespace mur::viewer {
namespace {

class SubRipReading {
 public:
  explicit SubRipReading(const QString& TextA) : mLines(SplitLines(TextA)) {
    mEndsOpen = !TextA.endsWith(QLatin1Char('\n')) && !TextA.endsWith(QLatin1Char('\r'));
  }

  std::vector<Cue> Read(Progress& ProgressA) {
    for (SkipBlankLines(); mAt < mLines.size(); SkipBlankLines()) {
      ProgressA.Report(mAt, mLines.size());
      ReadCue();
    }
    if (mCues.empty()) FailInLine(0, "it holds no subtitles");
    return std::move(mCues);
  }

 private:
  static bool IsNumber(const QString& LineA) {
    static const QRegularExpression number(QStringLiteral(R"(^\s*\d+\s*$)"));
    return number.match(LineA).hasMatch();
  }

  static bool LooksLikeTime(const QString& LineA) {
    static const QRegularExpression time(QStringLiteral(R"(^\s*\d+:\d*)"));
    return time.match(LineA).hasMatch();
  }

  bool IsTimingAt(std::size_t LineA) const { return LineA < mLines.size() && IsCueTiming(mLines[LineA]); }
  bool IsBlankAt(std::size_t LineA) const { return mLines[LineA].trimmed().isEmpty(); }
  // A number or name with its times below it, or the times themselves.
  bool IsStartAt(std::size_t LineA) const { return IsTimingAt(LineA) || IsTimingAt(LineA + 1); }

  void SkipBlankLines() {
    while (mAt < mLines.size() && IsBlankAt(mAt)) ++mAt;
  }

  void ReadCue() {
    if (!IsStartAt(mAt)) {
      FailInLine(mAt, IsNumber(mLines[mAt]) ? "a cue number without times behind it"
                                            : "expected a cue number or the times of a cue");
    }
    if (!IsTimingAt(mAt)) ++mAt;
    const std::size_t timing = mAt;
    Cue cue = ReadTiming();
    ++mAt;
    cue.text = PlainCueText(ReadText());
    if (cue.text.empty() && mAt >= mLines.size() && (mEndsOpen || timing + 1 == mLines.size()))
      FailInLine(timing, "the file ends behind the times of its last cue");
    mCues.push_back(std::move(cue));
  }

  Cue ReadTiming() const {
    static const QRegularExpression timing(
        QStringLiteral(R"(^\s*(?:(\d{1,4}):)?([0-5]?\d):([0-5]?\d)(?:[.,](\d{1,9}))?\s*-->)"
                       R"(\s*(?:(\d{1,4}):)?([0-5]?\d):([0-5]?\d)(?:[.,](\d{1,9}))?(?:\s.*)?$)"));
    return ReadCueTimes(timing, mLines[mAt], mAt);
  }

  // Up to the next cue. Lines behind a blank one still belong to the text unless they look like a damaged
  // cue.
  QString ReadText() {
    QStringList text;
    bool isBehindBlank = false;
    for (; mAt < mLines.size(); ++mAt) {
      if (IsBlankAt(mAt)) {
        isBehindBlank = true;
        continue;
      }
      if (IsTimingAt(mAt) || (isBehindBlank && IsStartAt(mAt))) break;
      if (IsNumber(mLines[mAt]) && IsTimingAt(mAt + 1)) break;
      if (isBehindBlank && (IsNumber(mLines[mAt]) || LooksLikeTime(mLines[mAt]))) break;
      text += mLines[mAt];
    }
    return text.join(QLatin1Char('\n'));
  }

  std::vector<QString> mLines;
  bool mEndsOpen = false;
  std::size_t mAt = 0;
  std::vector<Cue> mCues;
};

}  // namespace

Document ReadSubRip(std::string_view BytesA, Progress& ProgressA) {
  return DocumentOfCues(FileKind::SubRip, SubRipReading(DecodeText(BytesA)).Read(ProgressA));
}

}  // namespace mur::viewer
