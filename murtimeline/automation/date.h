#pragma once

#include <compare>

#include <murtimeline/automation/export.h>

namespace mur {

/// The one constant between days and seconds.
inline constexpr double kSecondsPerDay = 86400.0;

/// An automation date: days since 30 December 1899 00:00 as a double, the fraction being the time of day.
/// A value that comes from outside is kept as it is; `FromDays` is the checked conversion from a number.
class MUR_API Date {
 public:
  static constexpr double kLowestDays = -657434.0;       // 1 January 100
  static constexpr double kHighestDays = 2958465.99999;  // 31 December 9999

  constexpr Date() = default;

  /// Takes `DaysA` as it stands, in range or not.
  static constexpr Date Unchecked(double DaysA) noexcept {
    Date date;
    date.mDays = DaysA;
    return date;
  }

  /// Throws Overflow outside [kLowestDays, kHighestDays] and for NaN.
  static Date FromDays(double DaysA);

  constexpr double Days() const noexcept { return mDays; }
  constexpr double Seconds() const noexcept { return mDays * kSecondsPerDay; }
  constexpr bool InRange() const noexcept { return mDays >= kLowestDays && mDays <= kHighestDays; }

  friend constexpr auto operator<=>(Date, Date) = default;

 private:
  double mDays = 0.0;
};

/// CDate(CDate(SecondsA / 86400) + StartA): both conversions check the range and throw Overflow.
MUR_API Date AddSeconds(Date StartA, double SecondsA);

/// The present local date and time, in whole seconds.
MUR_API Date Now();

/// Makes `Now` answer `InstantA` while it lives; for tests and reproducible pictures.
class MUR_API FrozenClock {
 public:
  explicit FrozenClock(Date InstantA);
  ~FrozenClock();
  FrozenClock(const FrozenClock&) = delete;
  FrozenClock& operator=(const FrozenClock&) = delete;
  void Set(Date InstantA);

 private:
  const Date* mOuter;
  Date mInstant;
};

}  // namespace mur
