#include <QFile>
#include <QTemporaryDir>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include <murtimeline/model/timeline_owner.h>

#include "tests/viewer/outline.h"
#include "viewer/output_file.h"
#include "viewer/saving.h"

namespace mur::viewer::test {
namespace {

class Saving : public testing::Test {
 protected:
  void Open(const std::string& TextA) {
    const QString path = mFolder.filePath(QStringLiteral("edit.otio"));
    WriteWholeFile(path, QByteArray::fromStdString(TextA));
    file = LoadFile(path, *timeline);
  }

  Ref<IMURTimelineObject> Object(const char16_t* KeyA) const { return timeline->ItemByKey(KeyA); }

  static void Move(IMURTimelineObject& ObjectA, double SecondsA) {
    ObjectA.SetWorldTimeT0(Date::Unchecked(ObjectA.WorldTimeT0().Days() + SecondsA / kSecondsPerDay));
  }

  std::string Saved() const {
    try {
      return EditAsText(file, *timeline).toStdString();
    } catch (const NotExpressible& error) {
      return std::string("refused: ") + error.what();
    }
  }

  QTemporaryDir mFolder;
  OwnedTimeline timeline;
  LoadedFile file;
};

TEST_F(Saving, GivesBackEveryByteOfAnEditThatWasNotChanged) {
  for (const char* name : {MUR_VIEWER_TEST_DATA "/edit.otio", MUR_VIEWER_SAMPLES "/feature_film.otio"}) {
    QFile source(QString::fromUtf8(name));
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    const std::string text = "\xEF\xBB\xBF" + source.readAll().toStdString() + "\r\n";
    Open(text);
    EXPECT_EQ(Saved(), text);
  }
}

TEST_F(Saving, WritesWhereBarsWereMoved) {
  Open(TestData("edit.otio"));
  Move(*Object(u"Nest"), 0.5);
  EXPECT_EQ(Outline(Read(FileKind::OpenTimelineIO, Saved())),
            "group Track 1 (Video) @3600 +5\n"
            "  scalar Dissolve @3601.5 +0.75\n"
            "  media Shot é @3600 +2 in 1 of 10 file:///a.mov\n"
            "  media shot É @3602 +3 of 3 b.mov\n"
            "group A1 @3600 +2.5\n"
            "  group Nest @3601.5 +1\n"
            "    media Hum @3601.5 +0.5 in 2.5 of 0 \n");
  Move(*Object(u"Nest"), -0.5);
  EXPECT_EQ(Saved(), TestData("edit.otio")) << "back to the byte";
}

TEST_F(Saving, MovesMarkersThatWereMoved) {
  Open(TestData("edit.otio"));
  file.markers[0].time += 0.25;
  std::string expected = TestData("edit.otio");
  const std::size_t marker = expected.find("marked_range");
  expected.replace(expected.find("\"value\": 48", marker), 11, "\"value\": 54");
  EXPECT_EQ(Saved(), expected);
}

TEST_F(Saving, RefusesWhatTheFormatCannotSay) {
  Open(TestData("edit.otio"));
  Move(*Object(u"Shot é"), 10);
  EXPECT_EQ(Saved(),
            "refused: \"shot É\" and \"Shot é\" are joined by a transition and can only be moved together.");
}

TEST_F(Saving, RefusesWhatWouldNotComeBackAsItIsShown) {
  Open(TestData("edit.otio"));
  Object(u"Nest")->SetDuration(7);
  Move(*Object(u"Nest"), 0.5);
  EXPECT_EQ(Saved(), "refused: Saved like this, \"Nest\" would not lie where it is shown.");
}

// Tracks of clips, gaps, transitions, things unknown and nested tracks, at several rates and in several
// styles.
class RandomEdit {
 public:
  explicit RandomEdit(unsigned SeedA) : mRandom(SeedA) {}

  std::string Text() {
    std::string tracks;
    for (int i = 0; i < 3; ++i) tracks += (i ? ", " : "") + Track(0);
    return R"({"OTIO_SCHEMA": "Timeline.1", "tracks": {"OTIO_SCHEMA": "Stack.1", "children": [)" + tracks +
           "]}}";
  }

  int Number(int MostA) { return static_cast<int>(mRandom() % static_cast<unsigned>(MostA + 1)); }

 private:
  std::string Track(int DepthA) {
    std::string children;
    for (int i = Number(6); i > 0; --i) children += (children.empty() ? "" : ",\n  ") + Child(DepthA);
    return R"({"OTIO_SCHEMA": "Track.1", "name": "T", "children": [)" + children + "]}";
  }

  std::string Child(int DepthA) {
    switch (Number(9)) {
      case 0:
      case 1:
      case 2:
        return Item("Gap.1");
      case 3:
        return DepthA < 2 ? Track(DepthA + 1) : Item("Gap.1");
      case 4:
        return Number(1) ? Item("Spacer.3") : R"({"OTIO_SCHEMA": "Gap.1"})";
      default:
        return Item("Clip.2");
    }
  }

  std::string Item(const char* SchemaA) {
    static constexpr const char* kRates[] = {"24", "24.0", "23.976023976023978", "48000"};
    const std::string rate = kRates[Number(3)];
    const std::string frames = std::to_string(Number(100));
    return std::string("{\n    \"OTIO_SCHEMA\": \"") + SchemaA + "\",\n    \"name\": \"N" +
           std::to_string(mName++) + R"(", "note": 1.50,)" + "\n    " +
           R"("source_range": {"start_time": {"rate": )" + rate + R"(, "value": 0}, "duration": {"rate": )" +
           rate + R"(, "value": )" + frames + "}}\n  }";
  }

  std::mt19937 mRandom;
  int mName = 0;
};

// Outlines of all clips alone, each in its line, in any order.
std::multiset<std::string> TextsOf(const std::string& TextA, const std::string& BeginA) {
  std::multiset<std::string> items;
  for (std::size_t at = TextA.find(BeginA); at != std::string::npos; at = TextA.find(BeginA, at + 1))
    items.insert(TextA.substr(at, TextA.find("\n  }", at) - at));
  return items;
}

TEST_F(Saving, OfAnyMovesOfAnyEditLosesNothingOrRefuses) {
  int saved = 0, refused = 0;
  for (unsigned seed = 0; seed < 400; ++seed) {
    RandomEdit edit(seed);
    const std::string text = edit.Text();
    Open(text);
    ASSERT_EQ(Saved(), text);
    for (int moves = 1 + edit.Number(1); moves > 0 && !file.edit->items.empty(); --moves) {
      const auto& item =
          file.edit
              ->items[static_cast<std::size_t>(edit.Number(static_cast<int>(file.edit->items.size()) - 1))];
      Move(*timeline->ItemByKey(item.key), (edit.Number(4000) - 2000) / 1000.0);
    }
    const std::string result = Saved();
    if (result.starts_with("refused: ")) {
      ++refused;
      continue;
    }
    ++saved;
    // What was read again lies where it is shown, or it would have been refused. Nothing else was touched.
    for (const char* schema : {"\"Clip.2\"", "\"Spacer.3\""})
      EXPECT_EQ(TextsOf(result, schema), TextsOf(text, schema)) << seed;
  }
  EXPECT_GT(saved, 60);
  EXPECT_GT(refused, 60);
}

TEST_F(Saving, OfDamagedEditsThatCanBeReadLosesNothingOrRefuses) {
  const std::string text = TestData("edit.otio");
  int saved = 0;
  for (std::size_t at = 0; at < text.size(); at += 3) {
    std::string damaged = text;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x01);
    if (!ReadFailure(FileKind::OpenTimelineIO, damaged).empty()) continue;
    Open(damaged);
    ASSERT_EQ(Saved(), damaged);
    if (const auto nest = Object(u"Nest")) Move(*nest, 0.5);
    const std::string result = Saved();
    if (result.starts_with("refused: ")) continue;
    ++saved;
    EXPECT_EQ(ReadFailure(FileKind::OpenTimelineIO, result), "") << at;
  }
  EXPECT_GT(saved, 100);
}

}  // namespace
}  // namespace mur::viewer::test
