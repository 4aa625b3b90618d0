#include <gtest/gtest.h>

#include "tests/com/server.h"

// What holds for every test of the server: its thread is an apartment of its own, and no object of the server
// outlives the test.

namespace mur::test {
namespace {

class Leftovers final : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo& /*TestA*/) override {
    if (!server::IsIdle()) ADD_FAILURE() << "objects of the server outlive the test";
  }
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
