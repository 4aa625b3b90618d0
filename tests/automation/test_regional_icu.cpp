#include <cstdlib>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <murtimeline/automation/regional.h>

namespace mur {
namespace {

// Sets a variable of the environment while it lives; none removes it.
class EnvironmentScope {
 public:
  EnvironmentScope(const char* name, const char* value) : mName(name) {
    if (const char* outer = std::getenv(name)) mOuter = outer;
    Put(value);
  }
  ~EnvironmentScope() { Put(mOuter ? mOuter->c_str() : nullptr); }
  EnvironmentScope(const EnvironmentScope&) = delete;
  EnvironmentScope& operator=(const EnvironmentScope&) = delete;

 private:
  void Put(const char* value) const {
    if (value)
      setenv(mName, value, 1);
    else
      unsetenv(mName);
  }
  const char* mName;
  std::optional<std::string> mOuter;
};

String LongDateIn(const std::string& locale) {
  return MakeRegionalServices(locale)->Format(Date::Unchecked(36526.25), u"Long Date");
}

TEST(MakeRegionalServices, AsksTheEnvironmentForTheUsersOwnRegion) {
  const EnvironmentScope all("LC_ALL", nullptr);
  const EnvironmentScope time("LC_TIME", "fr_FR.UTF-8");
  const EnvironmentScope language("LANG", "de_DE.UTF-8");
  EXPECT_EQ(LongDateIn(""), u"samedi 1 janvier 2000");
  const EnvironmentScope overriding("LC_ALL", "en_GB.UTF-8");
  EXPECT_EQ(LongDateIn(""), u"Saturday, 1 January 2000");
}

TEST(MakeRegionalServices, PassesOverEmptyVariables) {
  const EnvironmentScope all("LC_ALL", "");
  const EnvironmentScope time("LC_TIME", "");
  const EnvironmentScope language("LANG", "de_DE.UTF-8");
  EXPECT_EQ(LongDateIn(""), u"Samstag, 1. Januar 2000");
}

TEST(MakeRegionalServices, WorksWithoutAnEnvironment) {
  const EnvironmentScope all("LC_ALL", nullptr);
  const EnvironmentScope time("LC_TIME", nullptr);
  const EnvironmentScope language("LANG", nullptr);
  EXPECT_NE(LongDateIn("").find(u"2000"), String::npos);
}

}  // namespace
}  // namespace mur
