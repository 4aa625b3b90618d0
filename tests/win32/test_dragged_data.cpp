#include <gmock/gmock.h>

#include <murtimeline/win32/dragged_data.h>

#include "tests/win32/given_data.h"

namespace mur::win32::test {
namespace {

class Dragged : public testing::Test {
 protected:
  Dragged() { data->Open(&given); }

  void PutFiles(const void* PathsA, std::size_t CountA, BOOL IsWideA) {
    constexpr DWORD kHeader = 20;  // where the paths begin: an offset, a point and two flags before them
    std::vector<std::byte> bytes(kHeader + CountA);
    std::memcpy(bytes.data(), &kHeader, sizeof kHeader);
    std::memcpy(bytes.data() + 16, &IsWideA, sizeof IsWideA);
    std::memcpy(bytes.data() + kHeader, PathsA, CountA);
    given.Put(CF_HDROP, bytes.data(), bytes.size());
  }

  GivenData given;
  Ref<DraggedData> data = Make<DraggedData>();
};

TEST_F(Dragged, GivesTheText) {
  given.PutText(u"a \u263A b");
  EXPECT_EQ(data->Text(), u"a \u263A b");
}

TEST_F(Dragged, TakesTextOfTheUsersCodePageWhereThereIsNoOther) {
  given.Put(CF_TEXT, "plain", 6);
  EXPECT_EQ(data->Text(), u"plain");
}

TEST_F(Dragged, GivesThePathsOfFiles) {
  constexpr char16_t kPaths[] = u"C:\\a.wav\0C:\\b c.wav\0";
  PutFiles(kPaths, sizeof kPaths, TRUE);
  EXPECT_THAT(data->Files(), testing::ElementsAre(u"C:\\a.wav", u"C:\\b c.wav"));
  constexpr char kNarrow[] = "C:\\d.wav\0";
  PutFiles(kNarrow, sizeof kNarrow, FALSE);
  EXPECT_THAT(data->Files(), testing::ElementsAre(u"C:\\d.wav"));
}

TEST_F(Dragged, DamagedListsOfFilesHaveNone) {
  constexpr DWORD kBeyond = 4000;
  given.Put(CF_HDROP, &kBeyond, sizeof kBeyond);
  EXPECT_THAT(data->Files(), testing::IsEmpty());
  constexpr char16_t kUnended[] = {u'x', u'y'};
  PutFiles(kUnended, sizeof kUnended, TRUE);
  ASSERT_EQ(data->Files().size(), 1U);
  EXPECT_EQ(data->Files().front().substr(0, 2), u"xy");
}

TEST_F(Dragged, GivesBytesByFormat) {
  const auto format = static_cast<CLIPFORMAT>(RegisterClipboardFormatW(L"MURTimeline test"));
  given.Put(format, "\1\2\3", 3);
  EXPECT_TRUE(data->Has(format));
  EXPECT_FALSE(data->Has(CF_DIB));
  EXPECT_GE(data->Bytes(format).size(), 3U);  // memory may be handed over in larger parts
  EXPECT_EQ(data->Bytes(format)[2], std::byte{3});
  EXPECT_THAT(data->Bytes(CF_DIB), testing::IsEmpty());
  EXPECT_THAT(data->Formats(), testing::ElementsAre(format));
}

TEST_F(Dragged, IsEmptyOnceTheEventIsOver) {
  given.PutText(u"a");
  data->Close();
  EXPECT_FALSE(data->IsValid());
  EXPECT_EQ(data->Text(), u"");
  EXPECT_THAT(data->Formats(), testing::IsEmpty());
  EXPECT_EQ(data->Source(), nullptr);
  EXPECT_EQ(given.Holders(), 0U);
}

}  // namespace
}  // namespace mur::win32::test
