#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/regional.h>

#include "tests/support/platform.h"

namespace mur {
namespace {

struct Vector {
  std::string locale, kind, value, pattern, result;
  // Where a platform answers otherwise.
  std::string reason, platformResult;
};

// Where each reason to answer otherwise holds.
using Reasons = std::map<std::string, std::string>;

std::string WithCodePoints(std::string text) {
  for (std::size_t at = text.find("{U+"); at != std::string::npos; at = text.find("{U+", at + 1)) {
    const String unit(1, static_cast<char16_t>(std::stoi(text.substr(at + 3, 4), nullptr, 16)));
    text.replace(at, 8, ToUtf8(unit));
  }
  return text;
}

std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields(1);
  for (const char unit : line) {
    if (unit == '|')
      fields.emplace_back();
    else
      fields.back() += unit;
  }
  for (std::string& field : fields) field = WithCodePoints(field);
  return fields;
}

double ToDouble(const std::string& text) {
  return std::strtod(text.c_str(), nullptr);
}

Variant ValueOf(const Vector& vector) {
  if (vector.kind == "date") return Date::Unchecked(ToDouble(vector.value));
  if (vector.kind == "number") return ToDouble(vector.value);
  if (vector.kind == "single") return std::strtof(vector.value.c_str(), nullptr);
  if (vector.kind == "int") return std::int64_t{std::strtoll(vector.value.c_str(), nullptr, 10)};
  if (vector.kind == "bool") return vector.value == "true";
  if (vector.kind == "text") return FromUtf8(vector.value);
  if (vector.kind == "null") return Variant::Null();
  EXPECT_EQ(vector.kind, "empty");
  return {};
}

std::string ErrorName(ErrorCode code) {
  if (code == ErrorCode::Overflow) return "!Overflow";
  return "!Error " + std::to_string(static_cast<int>(code));
}

template <class Call>
std::string TextOrError(Call call) {
  try {
    return ToUtf8(call());
  } catch (const AutomationError& error) {
    return ErrorName(error.Code());
  }
}

const RegionalServices& Services(const std::string& locale) {
  static std::map<std::string, std::unique_ptr<RegionalServices>> services;
  auto& entry = services[locale];
  if (!entry) entry = MakeRegionalServices(locale);
  return *entry;
}

// A marked vector must differ where its reason holds, so that no mark outlives its difference.
std::string Expected(const Vector& vector, const Reasons& reasons) {
  if (vector.reason.empty()) return vector.result;
  EXPECT_TRUE(reasons.contains(vector.reason)) << vector.reason;
  EXPECT_NE(vector.platformResult, vector.result);
  return test::RunsOn(reasons.at(vector.reason)) ? vector.platformResult : vector.result;
}

void Check(const Vector& vector, const Reasons& reasons) {
  const RegionalServices& services = Services(vector.locale);
  const Variant value = ValueOf(vector);
  const String pattern = FromUtf8(vector.pattern);
  const std::string expected = Expected(vector, reasons);
  EXPECT_EQ(TextOrError([&] { return services.Format(value, pattern); }), expected);
  if (!pattern.empty()) return;
  // The default conversions on their own agree with Format.
  if (const Date* date = value.As<Date>()) {
    EXPECT_EQ(TextOrError([&] { return services.DateToText(*date); }), expected);
  }
  if (const double* number = value.As<double>()) {
    EXPECT_EQ(TextOrError([&] { return services.NumberToText(*number); }), expected);
  }
}

class FormatVectors : public testing::Test {
 protected:
  void SetUp() override {
    std::ifstream file(MUR_FORMAT_VECTORS);
    ASSERT_TRUE(file) << MUR_FORMAT_VECTORS;
    for (std::string line; std::getline(file, line);) {
      ++mLineNumber;
      if (line.empty() || line.front() == '#') continue;
      SCOPED_TRACE("format_vectors.txt:" + std::to_string(mLineNumber) + ": " + line);
      Take(Fields(line), line);
    }
  }

  void Take(std::vector<std::string> fields, const std::string& line) {
    if (fields.front() == "reason") {
      ASSERT_EQ(fields.size(), 4u);
      EXPECT_TRUE(fields[2] == "windows" || fields[2] == "wine");
      mReasons[fields[1]] = fields[2];
      return;
    }
    ASSERT_TRUE(fields.size() == 5 || fields.size() == 7);
    fields.resize(7);
    mLines.push_back("format_vectors.txt:" + std::to_string(mLineNumber) + ": " + line);
    mVectors.push_back({fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], fields[6]});
  }

  Reasons mReasons;
  std::vector<Vector> mVectors;
  std::vector<std::string> mLines;

 private:
  int mLineNumber = 0;
};

TEST_F(FormatVectors, AllHold) {
  for (std::size_t i = 0; i < mVectors.size(); ++i) {
    SCOPED_TRACE(mLines[i]);
    Check(mVectors[i], mReasons);
  }
  EXPECT_GE(mVectors.size(), 450u);
}

TEST_F(FormatVectors, NameEveryReasonThatIsGiven) {
  for (const Vector& vector : mVectors) mReasons.erase(vector.reason);
  EXPECT_TRUE(mReasons.empty()) << mReasons.begin()->first;
}

}  // namespace
}  // namespace mur
