#include <stdexcept>

#include <gtest/gtest.h>

#include <murtimeline/automation/guard.h>

namespace mur {
namespace {

[[noreturn]] void RunOut() {
  throw AutomationError(ErrorCode::OutOfStackSpace);
}

TEST(Guard, SaysWhetherTheStatementCompleted) {
  EXPECT_TRUE(ResumeNext([] {}));
  EXPECT_FALSE(ResumeNext([] { throw AutomationError(ErrorCode::Overflow); }));
}

TEST(Guard, SwallowsWhateverHostCodeThrows) {
  EXPECT_FALSE(ResumeNext([] { throw 42; }));
  EXPECT_FALSE(ResumeNext([] { throw std::runtime_error("host"); }));
}

TEST(Guard, SwallowsOrdinaryErrorsWhereTheyArise) {
  bool wentOn = false;
  EXPECT_TRUE(ResumeNext([&] {
    ResumeNext([] { throw AutomationError(ErrorCode::Overflow); });
    wentOn = true;
  }));
  EXPECT_TRUE(wentOn);
}

TEST(Guard, SwallowsOutOfStackSpaceInTheOutermostOneOnly) {
  bool wentOn = false;
  EXPECT_FALSE(ResumeNext([&] {
    ResumeNext([&] { ResumeNext(RunOut); });
    wentOn = true;
  }));
  EXPECT_FALSE(wentOn);
  EXPECT_FALSE(ResumeNext(RunOut));
}

}  // namespace
}  // namespace mur
