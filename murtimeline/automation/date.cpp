#include <chrono>
#include <ctime>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/error.h>

namespace mur {
namespace {
thread_local const Date* tFrozen = nullptr;
}

Date Date::FromDays(double DaysA) {
  const Date date = Unchecked(DaysA);
  if (!date.InRange()) throw AutomationError(ErrorCode::Overflow);
  return date;
}

Date AddSeconds(Date StartA, double SecondsA) {
  return Date::FromDays(Date::FromDays(SecondsA / kSecondsPerDay).Days() + StartA.Days());
}

Date Now() {
  if (tFrozen) return *tFrozen;
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  const auto day = std::chrono::sys_days(std::chrono::year(local.tm_year + 1900) /
                                         std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)) /
                                         std::chrono::day(static_cast<unsigned>(local.tm_mday)));
  constexpr auto epoch = std::chrono::sys_days(std::chrono::year(1899) / 12 / 30);
  const int seconds = (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec;
  return Date::Unchecked(static_cast<double>((day - epoch).count()) + seconds / kSecondsPerDay);
}

FrozenClock::FrozenClock(Date InstantA) : mOuter(tFrozen), mInstant(InstantA) {
  tFrozen = &mInstant;
}

FrozenClock::~FrozenClock() {
  tFrozen = mOuter;
}

void FrozenClock::Set(Date InstantA) {
  mInstant = InstantA;
}

}  // namespace mur
