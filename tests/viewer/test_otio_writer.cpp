#include <gtest/gtest.h>

#include "tests/viewer/outline.h"
#include "viewer/readers/read_error.h"
#include "viewer/writers/otio_writer.h"

namespace mur::viewer::test {
namespace {

// Items in the order of the file: the stack of tracks is 0, the first track 1, its first child 2, ...
constexpr char kSmallEdit[] = R"({
  "OTIO_SCHEMA": "Stack.1", "children": [
    {
      "OTIO_SCHEMA": "Track.1", "name": "V1", "children": [
        {
          "OTIO_SCHEMA": "Gap.1", "metadata": {"big": 12345678901234567890, "x": NaN},
          "source_range": {"duration": {"rate": 24.0, "value": 24.0}, "start_time": {"rate": 24.0, "value": 0.0}}
        },
        {
          "OTIO_SCHEMA": "Clip.2",
          "name": "A",
          "source_range": {"duration": {"rate": 24.0, "value": 48.0}, "start_time": {"rate": 24.0, "value": 0.0}},
          "markers": [
            {"OTIO_SCHEMA": "Marker.2", "name": "broken"},
            {"OTIO_SCHEMA": "Marker.2", "name": "M", "marked_range": {"start_time": {"rate": 24, "value": 12}}}
          ]
        },
        {
          "OTIO_SCHEMA": "Clip.2",
          "name": "B",
          "source_range": {"duration": {"rate": 24.0, "value": 24.0}, "start_time": {"rate": 24.0, "value": 0.0}}
        }
      ]
    }
  ]
}
)";
constexpr std::size_t kTrack = 1, kA = 3, kB = 4;

std::string Replaced(std::string TextA, const std::string& OldA, const std::string& NewA) {
  const std::size_t at = TextA.find(OldA);
  EXPECT_NE(at, std::string::npos) << OldA;
  return TextA.replace(at, OldA.size(), NewA);
}

std::string Written(std::string_view TextA, const EditMoves& MovesA) {
  try {
    return WriteOtio(TextA, MovesA);
  } catch (const NotExpressible& error) {
    return error.what();
  }
}

TEST(OtioWriter, ChangesNotAByteWithoutAMove) {
  EXPECT_EQ(WriteOtio(kSmallEdit, {}), kSmallEdit);
  EXPECT_EQ(WriteOtio(kSmallEdit, {{{kTrack, 0, false}, {kA, 0, false}, {kB, 1e-7, false}}, {}}), kSmallEdit);
  const std::string edit = TestData("edit.otio");
  EXPECT_EQ(WriteOtio(edit, {}), edit);
}

TEST(OtioWriter, ChangesTheLengthsOfGapsAlone) {
  const std::string later = WriteOtio(kSmallEdit, {{{kA, 0.5, false}, {kB, 0.5, false}}, {}});
  EXPECT_EQ(later, Replaced(kSmallEdit, "\"value\": 24.0", "\"value\": 36.0"));
}

TEST(OtioWriter, LaysOutANewGapLikeTheItemsAroundIt) {
  const std::string text = WriteOtio(kSmallEdit, {{{kB, 1, false}}, {}});
  EXPECT_EQ(text, Replaced(kSmallEdit,
                           "        {\n          \"OTIO_SCHEMA\": \"Clip.2\",\n          \"name\": \"B\"",
                           R"(        {
          "OTIO_SCHEMA": "Gap.1", "name": "", "metadata": {}, "source_range": {
            "OTIO_SCHEMA": "TimeRange.1", "start_time": {
              "OTIO_SCHEMA": "RationalTime.1", "rate": 24.0, "value": 0.0
            }, "duration": {
              "OTIO_SCHEMA": "RationalTime.1", "rate": 24.0, "value": 24.0
            }
          }, "effects": [], "markers": [], "enabled": true
        },
        {
          "OTIO_SCHEMA": "Clip.2",
          "name": "B")"));
  EXPECT_EQ(Outline(Read(FileKind::OpenTimelineIO, text)),
            "group V1 @0 +5\n  media A @1 +2 in 0 of 0 \n  media B @4 +1 in 0 of 0 \n");
}

TEST(OtioWriter, MovesATrackByDelayingWhatIsOnIt) {
  const std::string text = WriteOtio(kSmallEdit, {{{kTrack, 1, false}, {kA, 1, false}, {kB, 1, false}}, {}});
  EXPECT_EQ(text, Replaced(kSmallEdit, "\"value\": 24.0", "\"value\": 48.0"));
  EXPECT_EQ(WriteOtio(kSmallEdit, {{{kTrack, 1, false}}, {}}), text) << "what is not shown goes along";
}

TEST(OtioWriter, ReordersItemsWithoutTouchingTheirText) {
  const std::string text = WriteOtio(kSmallEdit, {{{kB, -3, false}}, {}});
  EXPECT_EQ(Outline(Read(FileKind::OpenTimelineIO, text)),
            "group V1 @0 +3\n  media B @0 +1 in 0 of 0 \n  media A @1 +2 in 0 of 0 \n");
  EXPECT_NE(text.find("{\"big\": 12345678901234567890, \"x\": NaN}"), std::string::npos);
}

TEST(OtioWriter, KeepsMarkersOnTheirItemAndMovesThemOnIt) {
  constexpr std::size_t kSecond = 1;
  const EditMoves together{{{kA, 0.5, false}, {kB, 0.5, false}}, {{kA, kSecond, 0.5}}};
  EXPECT_EQ(WriteOtio(kSmallEdit, together), Replaced(kSmallEdit, "\"value\": 24.0", "\"value\": 36.0"));
  EXPECT_EQ(WriteOtio(kSmallEdit, {{}, {{kA, kSecond, 0.5}}}),
            Replaced(kSmallEdit, "\"value\": 12}", "\"value\": 24}"));
}

TEST(OtioWriter, RefusesToMoveAMarkerThatHasNoTime) {
  const std::string text = Replaced(kSmallEdit, R"("start_time": {"rate": 24, "value": 12})",
                                    R"("duration": {"rate": 24, "value": 12})");
  EXPECT_EQ(Written(text, {{}, {{kA, 1, 0.5}}}), "The marker \"M\" has no time that could be changed.");
}

TEST(OtioWriter, RefusesToMoveALayerOfAStack) {
  const std::string text = R"({"OTIO_SCHEMA":"Stack.1","children":[{"OTIO_SCHEMA":"Clip.2","name":"A"}]})";
  EXPECT_EQ(Written(text, {{{1, 1, false}}, {}}),
            "\"A\" is a layer of a stack, and all layers begin where the stack does.");
}

TEST(OtioWriter, RefusesToMoveAnEmptyTrack) {
  const std::string text = R"({"OTIO_SCHEMA":"Track.1","name":"T","children":[]})";
  EXPECT_EQ(Written(text, {{{0, 1, false}}, {}}), "The track \"T\" holds nothing that could be moved.");
}

TEST(OtioWriter, RefusesToMoveWhatIsCutOffAndToMoveAnythingOutOfSight) {
  EXPECT_EQ(Written(kSmallEdit, {{{kB, 1, true}}, {}}),
            "\"B\" reaches beyond what is shown of its track and cannot be moved.");
  const std::string trimmed =
      Replaced(kSmallEdit, R"("name": "V1",)",
               R"("name": "V1", "source_range": {"duration": {"rate": 24, "value": 100}},)");
  EXPECT_EQ(Written(trimmed, {{{kB, 1, false}}, {}}), "\"B\" would lie outside of what is shown of \"V1\".");
}

TEST(OtioWriter, LeavesItemsOfUnknownKindsInTheirPlace) {
  const std::string text = Replaced(kSmallEdit, "Gap.1", "Spacer.7");
  EXPECT_EQ(Written(text, {{{kA, -0.5, false}}, {}}),
            "\"A\" would overlap \""
            " track\".");
}

TEST(OtioWriter, FindsEveryEditOfACollection) {
  const std::string clip =
      R"({"OTIO_SCHEMA":"Clip.1","source_range":{"duration":{"value":5,"rate":1},"start_time":{"value":0,"rate":1}}})";
  const std::string track = R"({"OTIO_SCHEMA":"Track.1","children":[)" + clip + "]}";
  const std::string text = R"({"OTIO_SCHEMA":"SerializableCollection.1","children":[)" + track +
                           R"(,{"OTIO_SCHEMA":"Timeline.1","tracks":{"OTIO_SCHEMA":"Stack.1","children":[)" +
                           track + "]}}]}";
  constexpr std::size_t kLastClip = 4;
  EXPECT_EQ(Outline(Read(FileKind::OpenTimelineIO, WriteOtio(text, {{{kLastClip, 2, false}}, {}}))),
            "group Track 1 (Video) @0 +5\n  media Clip @0 +5 in 0 of 0 \n"
            "group Track 1 (Video) @0 +7\n  media Clip @2 +5 in 0 of 0 \n");
}

TEST(OtioWriter, RefusesWhatIsNoEdit) {
  EXPECT_THROW(WriteOtio("{", {}), ReadError);
}

}  // namespace
}  // namespace mur::viewer::test
