#include <cstdlib>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/com/late.h"
#include "tests/com/library_text.h"
#include "tests/com/line_difference.h"

namespace mur::test {
namespace {

bool IsComment(const std::string& LineA) {
  return LineA.starts_with('#');
}

std::vector<std::string> ReadLines() {
  std::ifstream file(MUR_CONTRACT_FILE);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

// The contract without its remarks at the top.
std::vector<std::string> PublishedContract() {
  std::vector<std::string> lines = ReadLines();
  while (!lines.empty() && (lines.front().empty() || IsComment(lines.front()))) lines.erase(lines.begin());
  return lines;
}

void Rewrite(const std::vector<std::string>& ContractA) {
  std::vector<std::string> lines = ReadLines();
  std::erase_if(lines, [](const std::string& line) { return !IsComment(line); });
  lines.emplace_back();
  lines.insert(lines.end(), ContractA.begin(), ContractA.end());
  std::ofstream file(MUR_CONTRACT_FILE, std::ios::binary);
  for (const auto& line : lines) file << line << '\n';
}

// With MUR_UPDATE_CONTRACT set in the environment the published contract is written anew: that breaks hosts
// which were compiled before.
TEST(TypeLibrary, IsThePublishedContract) {
  const auto met = LinesOf(server::Library());
  if (std::getenv("MUR_UPDATE_CONTRACT")) Rewrite(met);
  EXPECT_EQ(Difference(PublishedContract(), met), "");
}

TEST(TypeLibrary, ADifferenceNamesTheLinesThatChanged) {
  EXPECT_EQ(Difference({"a", "b", "c"}, {"a", "c", "d"}), "- b\n+ d\n");
}

TEST(TypeLibrary, EveryNameLeadsToItsIdentifierInAnySpelling) {
  const Late timeline = NewTimeline();
  EXPECT_EQ(timeline.IdOf(L"Specifics_AsString"), 0x6003000A);
  EXPECT_EQ(timeline.IdOf(L"specifics_asstring"), 0x6003000A);
  EXPECT_EQ(timeline.IdOf(L"ITEM"), DISPID_VALUE);
  EXPECT_EQ(NewMedia().IdOf(L"useClipping"), 0x6803003F);
  EXPECT_EQ(NewGroup().As<::IMURTimelineObject>().IdOf(L"Offset"), 0x68030001);
}

// Behind the seven places of IUnknown and IDispatch, which are in the description too.
TEST(TypeLibrary, EveryMemberHasTheNextPlaceInItsTableOfMethods) {
  for (const wchar_t* name : {L"IMURTimelineObject", L"IMURTLObjectEventSink", L"_CMURTimeline",
                              L"_CMURTimelineGroup", L"_CMURTimelineScalar", L"_CMURTimelineMedia",
                              L"_CMURTLRenderConfig", L"IMURTLTimeScaleMarker", L"_MURTimelineRender"}) {
    const auto late = server::TypeNamed(name);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(late->GetTypeAttr(&attributes), S_OK);
    const UINT count = attributes->cFuncs;
    late->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
      FUNCDESC* function = nullptr;
      ASSERT_EQ(late->GetFuncDesc(i, &function), S_OK);
      EXPECT_EQ(function->oVft, static_cast<SHORT>(i * sizeof(void*))) << ToUtf8(name) << " " << i;
      late->ReleaseFuncDesc(function);
    }
  }
}

}  // namespace
}  // namespace mur::test
