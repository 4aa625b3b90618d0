#include <set>
#include <string>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>

namespace mur {
namespace {

TEST(Error, CarriesTheNumbersOfTheAutomationRuntime) {
  EXPECT_EQ(static_cast<int>(ErrorCode::Overflow), 6);
  EXPECT_EQ(static_cast<int>(ErrorCode::TypeMismatch), 13);
  EXPECT_EQ(static_cast<int>(ErrorCode::OutOfStackSpace), 28);
  EXPECT_EQ(static_cast<int>(ErrorCode::ObjectNotSet), 91);
  EXPECT_EQ(static_cast<int>(ErrorCode::DuplicateKey), 457);
}

TEST(Error, SaysWhatWentWrongInItsOwnWords) {
  std::set<std::string> texts;
  for (const int code : {5, 6, 7, 9, 11, 13, 28, 91, 457})
    texts.insert(AutomationError(static_cast<ErrorCode>(code)).what());
  EXPECT_EQ(texts.size(), 9u);
  EXPECT_STREQ(AutomationError(ErrorCode::Overflow).what(), "Overflow");
  EXPECT_STREQ(AutomationError(static_cast<ErrorCode>(1)).what(), "Automation error");
  EXPECT_EQ(AutomationError(ErrorCode::Overflow).Code(), ErrorCode::Overflow);
}

}  // namespace
}  // namespace mur
