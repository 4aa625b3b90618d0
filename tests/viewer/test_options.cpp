#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>

#include "viewer/options.h"

namespace mur::viewer::test {
namespace {

std::string Refusal(const QStringList& ArgumentsA) {
  try {
    ParseOptions(ArgumentsA);
    return {};
  } catch (const OptionsError& error) {
    return error.what();
  }
}

QStringList Words(const char* TextA) {
  return QString::fromLatin1(TextA).split(QLatin1Char(' '));
}

TEST(Options, ReadTheWholeCommandLine) {
  const Options options =
      ParseOptions(Words("a.otio --from 01:00:10:12 --duration 2.5 --size 800x600 --png o.png --svg o.svg "
                         "--pdf o.pdf --dump --events"));
  EXPECT_EQ(options.file, QStringLiteral("a.otio"));
  EXPECT_EQ(options.from, TimeArgument(ClockTime{3610, 12}));
  EXPECT_EQ(options.duration, 2.5);
  EXPECT_EQ(options.size, QSize(800, 600));
  EXPECT_EQ(options.png, QStringLiteral("o.png"));
  EXPECT_EQ(options.svg, QStringLiteral("o.svg"));
  EXPECT_EQ(options.pdf, QStringLiteral("o.pdf"));
  EXPECT_TRUE(options.dump && options.events && options.IsHeadless() && options.WantsPicture());
}

TEST(Options, AreEmptyWithoutArguments) {
  const Options options = ParseOptions({});
  EXPECT_EQ(options.file, QString());
  EXPECT_EQ(options.size, QSize(1280, 720));
  EXPECT_FALSE(options.IsHeadless());
}

TEST(Options, RefuseWhatTheyDoNotUnderstand) {
  EXPECT_EQ(Refusal(Words("a --size 10")),
            "--size needs WIDTHxHEIGHT with sides from 1 to 16384, not \"10\"");
  EXPECT_EQ(Refusal(Words("a --size 99999x5")),
            "--size needs WIDTHxHEIGHT with sides from 1 to 16384, not \"99999x5\"");
  EXPECT_EQ(Refusal(Words("a --duration nan")), "--duration needs a positive number of seconds, not \"nan\"");
  EXPECT_EQ(Refusal(Words("a --from 25h")), "--from cannot be read as a time: \"25h\"");
  EXPECT_EQ(Refusal(Words("a b")), "only one FILE can be shown, not also \"b\"");
  EXPECT_EQ(Refusal(Words("--dump")), "a FILE is needed");
  EXPECT_NE(Refusal(Words("a --no-such-option")), "");
  EXPECT_NE(Refusal(Words("a --png")), "");
}

TEST(Options, AskForHelpWhateverElseIsThere) {
  EXPECT_TRUE(ParseOptions(Words("--help a b")).help);
  EXPECT_TRUE(ParseOptions(Words("-v")).version);
}

TEST(TimeArgument, ReadsEveryForm) {
  EXPECT_EQ(ParseTimeArgument(QStringLiteral("12.5")), TimeArgument(SecondsFromStart{12.5}));
  EXPECT_EQ(ParseTimeArgument(QStringLiteral("01:02:03")), TimeArgument(ClockTime{3723, 0}));
  EXPECT_EQ(ParseTimeArgument(QStringLiteral("00:00:03.25")), TimeArgument(ClockTime{3.25, 0}));
  EXPECT_EQ(ParseTimeArgument(QStringLiteral("00:00:03:07")), TimeArgument(ClockTime{3, 7}));
  EXPECT_EQ(ParseTimeArgument(QStringLiteral("2000-01-01T06:00:00")),
            TimeArgument(Date::Unchecked(36526.25)));
  for (const char* text : {"", "x", "1:60:00", "00:00", "nan", "inf", "00:00:03,5"})
    EXPECT_EQ(ParseTimeArgument(QString::fromLatin1(text)), std::nullopt) << text;
}

TEST(TimeArgument, CountsClockTimesFromMidnightAndSecondsFromTheStart) {
  const Date day = Date::Unchecked(100), start = Date::Unchecked(100.5);
  EXPECT_EQ(ResolveTime(ClockTime{21600, 0}, day, start, 24), Date::Unchecked(100.25));
  EXPECT_EQ(ResolveTime(ClockTime{21599, 24}, day, start, 24), Date::Unchecked(100.25));
  EXPECT_EQ(ResolveTime(ClockTime{21599, 25}, day, start, 0), Date::Unchecked(100.25));
  EXPECT_EQ(ResolveTime(SecondsFromStart{21600}, day, start, 24), Date::Unchecked(100.75));
  EXPECT_EQ(ResolveTime(Date::Unchecked(7), day, start, 24), Date::Unchecked(7));
  EXPECT_THROW(ResolveTime(SecondsFromStart{1e300}, day, start, 24), AutomationError);
}

}  // namespace
}  // namespace mur::viewer::test
