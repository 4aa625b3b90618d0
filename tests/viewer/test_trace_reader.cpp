#include <gtest/gtest.h>

#include "tests/viewer/outline.h"
#include "viewer/readers/trace_slices.h"

namespace mur::viewer::test {
namespace {

constexpr FileKind kKind = FileKind::ChromeTrace;

std::string Event(const std::string& PhaseA, double TimeA, const std::string& NameA,
                  const std::string& MoreA = {}) {
  return R"({"ph":")" + PhaseA + R"(","pid":1,"tid":1,"ts":)" + std::to_string(TimeA) + R"(,"name":")" +
         NameA + "\"" + MoreA + "}";
}

TEST(TraceReader, GivesEachProcessAndThreadATrackAndNestsSlices) {
  EXPECT_EQ(Outline(Read(kKind, TestData("slices.json"))),
            "group Browser (pid 7) @0 +0.0005\n"
            "group Main (tid 1) @0 +0.0005\n"
            "  group Frame @0 +0.0005\n"
            "    scalar Layout @0.00010025 +0.0002005\n"
            "group Thread 2 @0.0002 +0.0001\n"
            "  scalar Decode @0.0002 +0.0001\n"
            "group Process 18446744073709551616 @0.0009 +0.0001\n"
            "group Thread io @0.0009 +0.0001\n"
            "  scalar Read @0.0009 +0.0001\n");
}

TEST(TraceReader, CountsWhatItLeavesOut) {
  EXPECT_EQ(Read(kKind, TestData("slices.json")).notes,
            (std::vector<std::string>{"1 events of other kinds than slices are left out",
                                      "1 ends without a begin are left out"}));
}

TEST(TraceReader, TakesABareArrayWithoutItsEnd) {
  const std::string whole = "[" + Event("X", 5, "a", R"(,"dur":2)") + "]";
  const std::string outline = Outline(Read(kKind, whole));
  EXPECT_EQ(outline, "group Process 1 @0 +2e-06\ngroup Thread 1 @0 +2e-06\n  scalar a @0 +2e-06\n");
  EXPECT_EQ(Outline(Read(kKind, whole.substr(0, whole.size() - 1))), outline);
  EXPECT_EQ(Outline(Read(kKind, whole.substr(0, whole.size() - 1) + ",\n")), outline);
  EXPECT_EQ(Outline(Read(kKind, whole.substr(0, whole.size() - 1) + ",]")), outline);
}

TEST(TraceReader, TakesAnObjectWithoutItsEnd) {
  const std::string text = R"({"traceEvents":[)" + Event("X", 5, "a", R"(,"dur":2)");
  EXPECT_EQ(Outline(Read(kKind, text)), Outline(Read(kKind, text + "]}")));
}

TEST(TraceReader, RefusesACutInsideAnEvent) {
  const std::string text = "[\n" + Event("B", 1, "a") + ",\n" + Event("E", 2, "a");
  EXPECT_EQ(ReadFailure(kKind, text.substr(0, text.size() - 1)),
            "line 3, column 51: the file ends inside an event");
  EXPECT_EQ(ReadFailure(kKind, text.substr(0, text.size() - 2)),
            "line 3, column 50: the file ends inside a text");
}

TEST(TraceReader, RefusesWhatHoldsNoEvents) {
  EXPECT_EQ(ReadFailure(kKind, "{}"), "line 1, column 2: it has no \"traceEvents\"");
  EXPECT_EQ(ReadFailure(kKind, R"({"traceEvents":3})"),
            "line 1, column 16: expected an array of trace events");
  EXPECT_EQ(ReadFailure(kKind, "[1]"), "line 1, column 2: expected a trace event");
  EXPECT_EQ(ReadFailure(kKind, "[{}\n{}]"), "line 2, column 1: expected ',' or ']' behind an event");
  EXPECT_EQ(ReadFailure(kKind, "[\n{\"a\":x}]").substr(0, 16), "line 2, column 6");
}

TEST(TraceReader, ReadsAnEmptyTrace) {
  EXPECT_EQ(Outline(Read(kKind, "[]")), "");
}

TEST(TraceReader, CountsEventsWithoutAUsableTime) {
  const Document document =
      Read(kKind, R"([{"ph":"X","ts":NaN,"dur":1},{"ph":"B"},{"ph":"X","ts":"soon","dur":1}])");
  EXPECT_EQ(document.notes, std::vector<std::string>{"3 events without a usable time are left out"});
}

TEST(TraceReader, KeepsMicrosecondsExactAfterDaysOfUptime) {
  const std::string text = "[" + Event("X", 438877834451, "a", R"(,"dur":1)") + "," +
                           Event("X", 438877834455, "b", R"(,"dur":1)") + "]";
  const Document document = Read(kKind, text);
  EXPECT_EQ(document.entries.back().start, 4e-6);
  EXPECT_EQ(document.day, Date());
}

TEST(PairSlices, LetsAnOpenBeginLastUntilTheEnd) {
  std::size_t stray = 0;
  const auto slices = PairSlices({{SliceEvent::Kind::Begin, {3, 3, 0}}}, 9, stray);
  ASSERT_EQ(slices.size(), 1U);
  EXPECT_EQ(slices[0].start, 3);
  EXPECT_EQ(slices[0].end, 9);
}

TEST(PairSlices, SortsEventsByTimeAndKeepsTheOrderOfEqualOnes) {
  using enum SliceEvent::Kind;
  std::size_t stray = 0;
  const auto slices =
      PairSlices({{End, {8, 8, 0}}, {Begin, {2, 2, 1}}, {Begin, {2, 2, 2}}, {End, {5, 5, 0}}}, 9, stray);
  ASSERT_EQ(slices.size(), 2U);
  EXPECT_EQ(slices[0].name, 1U);
  EXPECT_EQ(slices[0].end, 8);
  EXPECT_EQ(slices[1].name, 2U);
  EXPECT_EQ(slices[1].end, 5);
  EXPECT_EQ(stray, 0U);
}

TEST(NestSlices, NestsASliceThatOutlastsItsParentSoThatNoRowOverlaps) {
  const auto nested = NestSlices({{0, 10, 0}, {5, 15, 1}, {12, 13, 2}, {15, 16, 3}});
  ASSERT_EQ(nested.size(), 4U);
  EXPECT_EQ(nested[1].parent, std::optional<std::size_t>(0));
  EXPECT_EQ(nested[2].parent, std::optional<std::size_t>(1));
  EXPECT_EQ(nested[3].parent, std::nullopt);
  EXPECT_TRUE(nested[0].hasChildren);
  EXPECT_FALSE(nested[3].hasChildren);
}

TEST(NestSlices, PutsTheLongerOfTwoThatBeginTogetherOutside) {
  const auto nested = NestSlices({{1, 2, 0}, {1, 5, 1}});
  EXPECT_EQ(nested[0].slice.name, 1U);
  EXPECT_EQ(nested[1].parent, std::optional<std::size_t>(0));
}

}  // namespace
}  // namespace mur::viewer::test
