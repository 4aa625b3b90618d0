#include <gtest/gtest.h>

#include "tests/com/counted.h"

// What holds for every test of the server: its thread is an apartment of its own, and neither an object of
// the server nor one of the tests' own that it was given outlives the test.

namespace mur::test {
namespace {

class Leftovers final : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo& /*TestA*/) override {
    if (!server::IsIdle()) ADD_FAILURE() << "objects of the server outlive the test";
    if (HostObjectsAlive() != mHostObjects)
      ADD_FAILURE() << "the server still holds objects of the test's own";
    mHostObjects = HostObjectsAlive();
  }

  long mHostObjects = 0;  // those of a test that failed count once
};

class Apartment final : public testing::Environment {
  void SetUp() override {
    ASSERT_EQ(OleInitialize(nullptr), S_OK);
    testing::UnitTest::GetInstance()->listeners().Append(new Leftovers);
  }
  void TearDown() override { OleUninitialize(); }
};

[[maybe_unused]] const auto* const kApartment = testing::AddGlobalTestEnvironment(new Apartment);

}  // namespace
}  // namespace mur::test
