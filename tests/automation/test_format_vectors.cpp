#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/regional.h>

namespace mur {
namespace {

struct Vector {
  std::string locale, kind, value, pattern, result;
};

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

void Check(const Vector& vector) {
  const RegionalServices& services = Services(vector.locale);
  const Variant value = ValueOf(vector);
  const String pattern = FromUtf8(vector.pattern);
  EXPECT_EQ(TextOrError([&] { return services.Format(value, pattern); }), vector.result);
  if (!pattern.empty()) return;
  // The default conversions on their own agree with Format.
  if (const Date* date = value.As<Date>()) {
    EXPECT_EQ(TextOrError([&] { return services.DateToText(*date); }), vector.result);
  }
  if (const double* number = value.As<double>()) {
    EXPECT_EQ(TextOrError([&] { return services.NumberToText(*number); }), vector.result);
  }
}

TEST(FormatVectors, AllHold) {
  std::ifstream file(MUR_FORMAT_VECTORS);
  ASSERT_TRUE(file) << MUR_FORMAT_VECTORS;
  int lineNumber = 0;
  int checked = 0;
  for (std::string line; std::getline(file, line);) {
    ++lineNumber;
    if (line.empty() || line.front() == '#') continue;
    SCOPED_TRACE("format_vectors.txt:" + std::to_string(lineNumber) + ": " + line);
    const std::vector<std::string> fields = Fields(line);
    ASSERT_EQ(fields.size(), 5u);
    Check({fields[0], fields[1], fields[2], fields[3], fields[4]});
    ++checked;
  }
  EXPECT_GE(checked, 250);
}

}  // namespace
}  // namespace mur
