#include <limits>
#include <thread>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/stack.h>

namespace mur {
namespace {

// Ends by an error alone; the depth that it would end at is out of reach.
int Dive(int DepthA) {
  RequireStackSpace();
  volatile char ballast[1024] = {};
  ballast[0] = 1;
  return DepthA == std::numeric_limits<int>::max() ? 0 : Dive(DepthA + 1) + ballast[0];
}

TEST(Stack, HasSpaceInOrdinaryCode) {
  EXPECT_NO_THROW(RequireStackSpace());
}

TEST(Stack, RunsOutBeforeItEndsAndIsUsableAfterwards) {
  for (int i = 0; i < 2; ++i) {
    try {
      Dive(0);
      FAIL();
    } catch (const AutomationError& error) {
      EXPECT_EQ(error.Code(), ErrorCode::OutOfStackSpace);
    }
  }
  EXPECT_NO_THROW(RequireStackSpace());
}

TEST(Stack, IsMeasuredForEachThread) {
  bool ranOut = false;
  std::thread([&] {
    RequireStackSpace();
    try {
      Dive(0);
    } catch (const AutomationError&) {
      ranOut = true;
    }
  }).join();
  EXPECT_TRUE(ranOut);
}

}  // namespace
}  // namespace mur
