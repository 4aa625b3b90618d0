#pragma once

#include <murtimeline/render/companions/time_mapper.h>

#include "tests/support/call_log.h"
#include "tests/support/value_text.h"

namespace mur::test {

/// The usual mapping between seconds and x, with its ranges noted.
class RecordingMapper final : public ITimeMapper {
 public:
  explicit RecordingMapper(CallLog& LogA) : mLog(LogA) {}

  void SetTimeRange(double StartA, double EndA) override {
    Note("Mapper.SetTimeRange", StartA, EndA);
    mMapper->SetTimeRange(StartA, EndA);
  }
  void SetPixelRange(double FirstA, double LastA) override {
    Note("Mapper.SetPixelRange", FirstA, LastA);
    mMapper->SetPixelRange(FirstA, LastA);
  }
  float SecondsToX(double SecondsA) const override {
    return mLog.Pass("Mapper.SecondsToX"), mMapper->SecondsToX(SecondsA);
  }
  double XToSeconds(float XA) const override {
    return mLog.Pass("Mapper.XToSeconds"), given ? *given : mMapper->XToSeconds(XA);
  }

  /// What XToSeconds answers instead.
  std::optional<double> given;

 private:
  void Note(const char* NameA, double FirstA, double SecondA) {
    mLog.Note(NameA, "(" + NumberText(FirstA) + ", " + NumberText(SecondA) + ")");
  }

  CallLog& mLog;
  Ref<MURTimeMapper> mMapper = Make<MURTimeMapper>();
};

/// Writes what it was asked: "90s style 4 at 25".
class PlainTimeText final : public ITimeText {
 public:
  explicit PlainTimeText(CallLog& LogA) : mLog(LogA) {}

  String FormatSeconds(double SecondsA, std::int32_t StyleA, double FramesPerSecondA) const override {
    mLog.Pass("TimeText.FormatSeconds");
    return FromAscii(NumberText(SecondsA) + "s style " + std::to_string(StyleA) + " at " +
                     NumberText(FramesPerSecondA));
  }

 private:
  CallLog& mLog;
};

}  // namespace mur::test
