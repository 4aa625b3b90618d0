#include <gtest/gtest.h>

#include "tests/viewer/outline.h"

namespace mur::viewer::test {
namespace {

struct Sample {
  const char* file;
  FileKind kind;
};

class DamagedFiles : public testing::TestWithParam<Sample> {
 protected:
  std::string mText = TestData(GetParam().file);
  std::string Failure(std::string_view TextA) const { return ReadFailure(GetParam().kind, TextA); }
};

// ReadFailure lets nothing but ReadErrors pass.
TEST_P(DamagedFiles, AreReadOrRefusedWhereverTheyEnd) {
  std::size_t refused = 0;
  for (std::size_t size = 0; size < mText.size(); ++size) refused += !Failure(mText.substr(0, size)).empty();
  EXPECT_GT(refused, 10U);
  EXPECT_EQ(Failure(mText), "");
}

TEST_P(DamagedFiles, AreReadOrRefusedWhateverAByteBecomes) {
  std::size_t refused = 0;
  for (std::size_t at = 0; at < mText.size(); ++at)
    for (const int flip : {0x01, 0x08, 0x20, 0x80}) {
      std::string text = mText;
      text[at] = static_cast<char>(text[at] ^ flip);
      refused += !Failure(text).empty();
    }
  EXPECT_GT(refused, 10U);
}

TEST_P(DamagedFiles, AreReadOrRefusedWhenAPieceIsMissing) {
  std::size_t refused = 0;
  for (std::size_t at = 0; at + 5 < mText.size(); ++at) {
    std::string text = mText;
    refused += !Failure(text.erase(at, 5)).empty();
  }
  EXPECT_GT(refused, 10U);
}

INSTANTIATE_TEST_SUITE_P(, DamagedFiles,
                         testing::Values(Sample{"edit.otio", FileKind::OpenTimelineIO},
                                         Sample{"slices.json", FileKind::ChromeTrace},
                                         Sample{"film.srt", FileKind::SubRip},
                                         Sample{"film.vtt", FileKind::WebVtt}),
                         [](const auto& caseA) {
                           return std::string(caseA.param.file).substr(0, 4) +
                                  std::to_string(static_cast<int>(caseA.param.kind));
                         });

TEST(DamagedEdit, IsRefusedWhereverItEnds) {
  const std::string text = TestData("edit.otio");
  for (std::size_t size = 0; size < text.rfind('}'); ++size)
    EXPECT_NE(ReadFailure(FileKind::OpenTimelineIO, text.substr(0, size)), "") << size;
}

TEST(DamagedEdit, SaysWhereItIsDamaged) {
  std::string text = TestData("edit.otio");
  text[text.find("\"kind\"") + 6] = ' ';  // its colon, on line 6
  EXPECT_EQ(ReadFailure(FileKind::OpenTimelineIO, text).substr(0, 15), "line 6, column ");
}

}  // namespace
}  // namespace mur::viewer::test
