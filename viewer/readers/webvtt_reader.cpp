#include "viewer/readers/webvtt_reader.h"

#include <QRegularExpression>
#include <QStringList>

#include "viewer/readers/cue_text.h"
#include "viewer/readers/cue_times.h"
#include "viewer/readers/text_decoding.h"

namespace mur::viewer {
namespace {

class WebVttReading {
 public:
  explicit WebVttReading(const QString& TextA) : mLines(SplitLines(TextA)) {}

  std::vector<Cue> Read(Progress& ProgressA) {
    SkipHeader();
    while (mAt < mLines.size()) {
      ProgressA.Report(mAt, mLines.size());
      if (mLines[mAt].isEmpty())
        ++mAt;
      else
        ReadBlock();
    }
    return std::move(mCues);
  }

 private:
  // A block that holds no cue, by its first line.
  static bool IsDefinition(const QString& LineA) {
    static const QRegularExpression definition(QStringLiteral(R"(^(NOTE|STYLE|REGION)([ \t].*)?$)"));
    return definition.match(LineA).hasMatch();
  }

  void SkipHeader() {
    static const QRegularExpression header(QStringLiteral(R"(^WEBVTT([ \t].*)?$)"));
    if (mLines.empty() || !header.match(mLines[0]).hasMatch())
      FailInLine(0, "expected \"WEBVTT\" at the beginning");
    // Some files begin their first cue right below the header.
    for (++mAt; mAt < mLines.size() && !mLines[mAt].isEmpty() && !IsCueTiming(mLines[mAt]);) ++mAt;
  }

  void ReadBlock() {
    if (IsDefinition(mLines[mAt])) {
      TakeBlock();
      return;
    }
    const std::size_t start = mAt;
    if (!IsCueTiming(mLines[mAt])) ++mAt;  // the cue's name
    if (mAt >= mLines.size() || !IsCueTiming(mLines[mAt])) FailInLine(start, "a cue without times");
    Cue cue = ReadTiming();
    const std::size_t timing = mAt++;
    cue.text = PlainCueText(TakeBlock());
    if (timing + 1 == mLines.size()) FailInLine(timing, "the file ends behind the times of its last cue");
    mCues.push_back(std::move(cue));
  }

  Cue ReadTiming() const {
    static const QRegularExpression timing(
        QStringLiteral(R"(^[ \t]*(?:(\d{2,6}):)?([0-5]\d):([0-5]\d)\.(\d{3})[ \t]*-->)"
                       R"([ \t]*(?:(\d{2,6}):)?([0-5]\d):([0-5]\d)\.(\d{3})(?:[ \t].*)?$)"));
    return ReadCueTimes(timing, mLines[mAt], mAt);
  }

  // The lines up to the next blank one or, where the blank one is missing, the next line of times.
  QString TakeBlock() {
    QStringList lines;
    for (; mAt < mLines.size() && !mLines[mAt].isEmpty() && !IsCueTiming(mLines[mAt]); ++mAt)
      lines += mLines[mAt];
    return lines.join(QLatin1Char('\n'));
  }

  std::vector<QString> mLines;
  std::size_t mAt = 0;
  std::vector<Cue> mCues;
};

}  // namespace

Document ReadWebVtt(std::string_view BytesA, Progress& ProgressA) {
  return DocumentOfCues(FileKind::WebVtt, WebVttReading(DecodeText(BytesA)).Read(ProgressA));
}

}  // namespace mur::viewer
