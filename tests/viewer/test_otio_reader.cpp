#include <gtest/gtest.h>

#include "tests/viewer/outline.h"

namespace mur::viewer::test {
namespace {

constexpr FileKind kKind = FileKind::OpenTimelineIO;

std::string Time(double ValueA, double RateA) {
  return R"({"OTIO_SCHEMA":"RationalTime.1","value":)" + std::to_string(ValueA) + R"(,"rate":)" +
         std::to_string(RateA) + "}";
}

std::string Range(double StartA, double DurationA, double RateA) {
  return R"({"OTIO_SCHEMA":"TimeRange.1","start_time":)" + Time(StartA, RateA) + R"(,"duration":)" +
         Time(DurationA, RateA) + "}";
}

std::string Clip(const std::string& NameA, double StartA, double DurationA, double RateA) {
  return R"({"OTIO_SCHEMA":"Clip.1","name":")" + NameA + R"(","source_range":)" +
         Range(StartA, DurationA, RateA) + "}";
}

std::string Composition(const char* SchemaA, const std::string& ChildrenA, const std::string& MoreA = {}) {
  return std::string(R"({"OTIO_SCHEMA":")") + SchemaA + R"(","name":"C","children":[)" + ChildrenA + "]" +
         MoreA + "}";
}

TEST(OtioReader, PlacesTracksClipsAndTransitionsInTime) {
  const Document document = Read(kKind, TestData("edit.otio"));
  EXPECT_EQ(Outline(document),
            "group Track 1 (Video) @3600 +5\n"
            "  scalar Dissolve @3601.5 +0.75\n"
            "  media Shot é @3600 +2 in 1 of 10 file:///a.mov\n"
            "  media shot É @3602 +3 of 3 b.mov\n"
            "group A1 @3600 +2\n"
            "  group Nest @3601 +1\n"
            "    media Hum @3601 +0.5 in 2.5 of 0 \n");
}

TEST(OtioReader, KeepsTitleRateAndGlobalStart) {
  const Document document = Read(kKind, TestData("edit.otio"));
  EXPECT_EQ(document.title, u"Small edit");
  EXPECT_EQ(document.rate, 24);
  EXPECT_EQ(document.start, 3600);
  EXPECT_EQ(document.duration, 5);
  EXPECT_EQ(document.day, Date::Unchecked(36526));
}

TEST(OtioReader, KeepsMarkersAtTheirTimeInTheEdit) {
  const Document document = Read(kKind, TestData("edit.otio"));
  ASSERT_EQ(document.markers.size(), 1U);
  EXPECT_EQ(document.markers[0].name, u"Look");
  EXPECT_EQ(document.markers[0].time, 3600.5);
  EXPECT_EQ(document.markers[0].duration, 0.5);
  EXPECT_EQ(document.markers[0].color, u"RED");
  EXPECT_EQ(document.markers[0].comment, u"here");
}

TEST(OtioReader, MarksTracksAndTheirKinds) {
  const Document document = Read(kKind, TestData("edit.otio"));
  EXPECT_TRUE(document.entries[0].isTrack);
  EXPECT_EQ(document.entries[0].groupType, kTrackGroup);
  EXPECT_TRUE(document.entries[4].isTrack);
  EXPECT_EQ(document.entries[4].groupType, kAudioTrackGroup);
  EXPECT_FALSE(document.entries[5].isTrack);
  EXPECT_EQ(document.entries[5].groupType, kNestedGroup);
}

TEST(OtioReader, DoesNotDriftOverThousandsOfClips) {
  std::string clips;
  for (int i = 0; i < 30000; ++i) clips += (i ? "," : "") + Clip("c", 0, 1, i % 2 ? 24000.0 / 1001 : 25);
  const Document document = Read(kKind, Composition("Track.1", clips));
  EXPECT_EQ(document.entries.back().start, 15000 / 25.0 + 14999 / 23.976024);
  EXPECT_EQ(document.duration, 15000 / 25.0 + 15000 / 23.976024);
}

TEST(OtioReader, KeepsWholeMediaWholeAmongManyRates) {
  std::string clips;
  for (const double rate : {24.0, 24000 / 1001.0, 30000 / 1001.0, 25.0, 7.0, 48000.0})
    for (int value = 1; value < 40; value += 3)
      clips += (clips.empty() ? "" : ",") +
               (R"({"OTIO_SCHEMA":"Clip.1","media_reference":{"OTIO_SCHEMA":"MissingReference.1",)"
                R"("available_range":)" +
                Range(5, value, rate) + "}}");
  const Document document = Read(kKind, Composition("Stack.1", Composition("Track.1", clips)));
  ASSERT_EQ(document.entries.size(), 79U);
  for (std::size_t i = 1; i < document.entries.size(); ++i) EXPECT_FALSE(document.entries[i].media.clipped);
}

TEST(OtioReader, LeavesOutWhatOnlyTouchesATrimmedRange) {
  const std::string clips = Clip("a", 0, 1, 3) + "," + Clip("b", 0, 1, 7) + "," + Clip("c", 0, 1, 10);
  const std::string nested = Composition("Track.1", clips, R"(,"source_range":)" + Range(1, 1, 3));
  EXPECT_EQ(Outline(Read(kKind, Composition("Track.1", nested))),
            "group C @0 +0.333333333\n"
            "  group C @0 +0.333333333\n"
            "    media b @0 +0.142857143 in 0 of 0 \n"
            "    media c @0.142857143 +0.1 in 0 of 0 \n");
}

TEST(OtioReader, TrimsWhatLiesOutsideANestedSourceRange) {
  const std::string clips = Clip("a", 10, 20, 10) + "," + Clip("b", 0, 20, 10) + "," + Clip("c", 0, 20, 10);
  const std::string nested = Composition("Track.1", clips, R"(,"source_range":)" + Range(15, 20, 10));
  EXPECT_EQ(Outline(Read(kKind, Composition("Track.1", nested))),
            "group C @0 +2\n"
            "  group C @0 +2\n"
            "    media a @0 +0.5 in 2.5 of 0 \n"
            "    media b @0.5 +1.5 in 0 of 0 \n");
}

TEST(OtioReader, ShowsTheUppermostVideoTrackFirstAndSoundLast) {
  const auto track = [](const char* kind, const char* clip) {
    return Composition("Track.1", Clip(clip, 0, 1, 1), std::string(R"(,"kind":")") + kind + "\"");
  };
  const std::string stack =
      Composition("Stack.1", track("Video", "v1") + "," + track("Audio", "a1") + "," + track("Video", "v2"));
  const Document document = Read(kKind, stack);
  ASSERT_EQ(document.entries.size(), 6U);
  EXPECT_EQ(document.entries[1].key, u"v2");
  EXPECT_EQ(document.entries[3].key, u"v1");
  EXPECT_EQ(document.entries[5].key, u"a1");
}

TEST(OtioReader, PutsATransitionAheadOfBothClipsThatItJoins) {
  const std::string transition =
      R"({"OTIO_SCHEMA":"Transition.1","in_offset":)" + Time(1, 1) + R"(,"out_offset":)" + Time(1, 1) + "}";
  const std::string track = Composition(
      "Track.1", Clip("a", 0, 4, 1) + "," + Clip("b", 0, 4, 1) + "," + transition + "," + Clip("c", 0, 4, 1));
  EXPECT_EQ(Outline(Read(kKind, track)),
            "group C @0 +12\n"
            "  media a @0 +4 in 0 of 0 \n"
            "  scalar Transition @7 +2\n"
            "  media b @4 +4 in 0 of 0 \n"
            "  media c @8 +4 in 0 of 0 \n");
}

TEST(OtioReader, ReadsMissingAndNullFieldsAsAbsent) {
  const std::string text =
      R"({"OTIO_SCHEMA":"Timeline.1","name":null,"tracks":{"OTIO_SCHEMA":"Stack.1","children":[)"
      R"({"OTIO_SCHEMA":"Track.1","children":null},{"OTIO_SCHEMA":"Track.1","kind":null,"children":[)"
      R"({"OTIO_SCHEMA":"Clip.2","media_references":null},{"OTIO_SCHEMA":"Gap.1"},null,3]}]}})";
  EXPECT_EQ(Outline(Read(kKind, text)),
            "group Track 2 (Video) @0 +0\n  media Clip @0 +0 of 0 \ngroup Track 1 (Video) @0 +0\n");
}

TEST(OtioReader, TakesSpecialNumbersForAbsentOnes) {
  for (const char* number : {"NaN", "Inf", "-Inf", "Infinity", "-Infinity", "1e999", "-1e400"}) {
    const std::string clip = std::string(R"({"OTIO_SCHEMA":"Clip.1","name":"Inf NaN","source_range":)") +
                             R"({"duration":{"value":2,"rate":1},"start_time":{"value":)" + number +
                             R"(,"rate":1}}})";
    EXPECT_EQ(Outline(Read(kKind, clip)), "group Track 1 (Video) @0 +2\n  media Inf NaN @0 +2 in 0 of 0 \n")
        << number;
  }
}

TEST(OtioReader, TakesIntegersOfAnyLength) {
  const std::string clip =
      R"({"OTIO_SCHEMA":"Clip.1","name":"a","metadata":{"id":123456789012345678901234567890},"source_range":)" +
      Range(0, 1, 1) + "}";
  EXPECT_EQ(Outline(Read(kKind, clip)), "group Track 1 (Video) @0 +1\n  media a @0 +1 in 0 of 0 \n");
}

TEST(OtioReader, NamesTheFirstPictureOfASequence) {
  const std::string clip =
      R"({"OTIO_SCHEMA":"Clip.1","name":"a","media_reference":{"OTIO_SCHEMA":"ImageSequenceReference.1",)"
      R"("target_url_base":"file:///r/","name_prefix":"sh.","name_suffix":".exr","start_frame":87,)"
      R"("frame_zero_padding":4}})";
  EXPECT_EQ(Read(kKind, clip).entries[1].media.filename, u"file:///r/sh.0087.exr");
}

TEST(OtioReader, PrefersANameInTheMetadataAsTag) {
  const std::string clip = R"({"OTIO_SCHEMA":"Clip.1","name":"a","metadata":{"name":"Hero shot"}})";
  EXPECT_EQ(Read(kKind, clip).entries[1].tag, u"Hero shot");
  EXPECT_EQ(Read(kKind, clip).entries[1].key, u"a");
}

TEST(OtioReader, NotesItemsOfUnknownKind) {
  const Document document =
      Read(kKind, Composition("Track.1", R"({"OTIO_SCHEMA":"Hologram.1","source_range":)" + Range(0, 3, 1) +
                                             "}," + Clip("b", 0, 1, 1)));
  EXPECT_EQ(document.notes, std::vector<std::string>{"an item of unknown kind \"Hologram\" is left out"});
  EXPECT_EQ(document.entries[1].start, 3);
}

TEST(OtioReader, ReadsEveryTimelineOfACollection) {
  const std::string text =
      Composition("SerializableCollection.1", Clip("a", 0, 2, 1) + "," + Clip("b", 0, 5, 1));
  EXPECT_EQ(Outline(Read(kKind, text)),
            "group Track 1 (Video) @0 +2\n  media a @0 +2 in 0 of 0 \n"
            "group Track 1 (Video) @0 +5\n  media b @0 +5 in 0 of 0 \n");
}

TEST(OtioReader, RefusesWhatIsNoEdit) {
  EXPECT_EQ(ReadFailure(kKind, "{}"),
            "line 1, column 1: not an OpenTimelineIO object: it has no \"OTIO_SCHEMA\"");
  EXPECT_EQ(ReadFailure(kKind, R"({"OTIO_SCHEMA":"Marker.1"})"),
            "line 1, column 1: holds a \"Marker\", not an edit");
  EXPECT_EQ(ReadFailure(kKind, R"({"OTIO_SCHEMA":"Timeline.1"})"),
            "line 1, column 1: the timeline has no stack of \"tracks\"");
  EXPECT_EQ(ReadFailure(kKind, ""), "byte 0: the file is empty");
}

TEST(OtioReader, RefusesTimesBeyondTheCalendar) {
  EXPECT_EQ(ReadFailure(kKind, Clip("far", 0, 1e15, 1)),
            "time line: its time lies outside the years 100 to 9999");
}

TEST(OtioReader, RefusesNestingBeyondAllMeasure) {
  std::string text;
  for (int i = 0; i < 5000; ++i) text += R"({"OTIO_SCHEMA":"Stack.1","children":[)";
  EXPECT_NE(ReadFailure(kKind, text).find("too deeply nested"), std::string::npos);
}

}  // namespace
}  // namespace mur::viewer::test
