#include <memory>

#include <gtest/gtest.h>

#include "tests/com/late.h"
#include "tests/com/memory.h"

namespace mur::test {
namespace {

constexpr std::ptrdiff_t kMostGrowth = 64 * 1024;

TEST(Memory, IsSeenToGrow) {
  std::vector<std::unique_ptr<char[]>> blocks(1000);
  const auto growth = GrowthBy([&] {
    for (auto& block : blocks) block = std::make_unique<char[]>(1000);
  });
  EXPECT_GE(growth, 1'000'000);
  EXPECT_LT(growth, 1'200'000);
}

/// Adds and removes members by their numbers, as compiled late-bound hosts do.
class Worker {
 public:
  void AddAndRemove(int TimesA) {
    for (int i = 0; i < TimesA; ++i) {
      const Value added = mTimeline.Invoke(mAdd, DISPATCH_METHOD, mScalarWithKey).value;
      ASSERT_NE(added.Object(), nullptr);
      ASSERT_EQ(mTimeline.Invoke(mRemove, DISPATCH_METHOD, mKey).result, S_OK);
    }
  }

 private:
  const Late mTimeline = NewTimeline();
  const DISPID mAdd = mTimeline.IdOf(L"Add"), mRemove = mTimeline.IdOf(L"Remove");
  const Values mScalarWithKey{1, L"A"}, mKey{L"A"};
};

TEST(Endurance, AMillionMembersComeAndGoWithoutALeak) {
  Worker worker;
  worker.AddAndRemove(100'000);
  EXPECT_LT(GrowthBy([&] { worker.AddAndRemove(900'000); }), kMostGrowth);
}

void LoadUseAndUnload() {
  const HMODULE module = LoadLibraryW(server::Path().c_str());
  ASSERT_NE(module, nullptr);
  NewTimeline().Put(L"Tag", {L"used"});
  ASSERT_TRUE(server::IsIdle());
  ASSERT_TRUE(FreeLibrary(module));
}

TEST(Endurance, TheServerIsLoadedUsedAndUnloadedWithoutALeak) {
  for (int i = 0; i < 1'000; ++i) LoadUseAndUnload();
  EXPECT_LT(GrowthBy([] {
              for (int i = 0; i < 9'000; ++i) LoadUseAndUnload();
            }),
            kMostGrowth);
}

TEST(Endurance, ControlsComeAndGoWithoutALeak) {
  const auto work = [] {
    for (int i = 0; i < 300; ++i) {
      const Late control = NewControl();
      Late(control.Get(L"Timeline")).Call(L"Add", {1, L"A", true});
      control.Call(L"AlignTracks");
      Late(control.Get(L"Timeline")).Call(L"Clear");
    }
  };
  work();
  EXPECT_LT(GrowthBy(work), kMostGrowth);
}

}  // namespace
}  // namespace mur::test
