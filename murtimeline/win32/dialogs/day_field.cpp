#include <algorithm>
#include <array>

#include <murtimeline/dialogs/moments.h>
#include <murtimeline/win32/dialogs/day_field.h>

namespace mur::win32 {
namespace {

constexpr SYSTEMTIME kFirst{1752, 9, 4, 14, 0, 0, 0, 0};
constexpr SYSTEMTIME kLast{9999, 12, 5, 31, 0, 0, 0, 0};

double DayOf(const SYSTEMTIME& TimeA) {
  SYSTEMTIME day{TimeA.wYear, TimeA.wMonth, 0, TimeA.wDay, 0, 0, 0, 0};
  double days = 0;
  SystemTimeToVariantTime(&day, &days);
  return days;
}

SYSTEMTIME OnDay(double DayA) {
  SYSTEMTIME time{};
  VariantTimeToSystemTime(DayA, &time);
  return time;
}

double KnownDay(double DayA) {
  return std::clamp(DayA, DayOf(kFirst), DayOf(kLast));
}

}  // namespace

// What is written on the window is its name for those who have the screen read to them.
void DayField::Add() {
  constexpr ControlKind kCalendar{MONTHCAL_CLASSW, WS_TABSTOP};
  mControls.Add(mId, kCalendar, u"Date");
  std::array range{kFirst, kLast};
  SendMessageW(Window(), MCM_SETRANGE, GDTR_MIN | GDTR_MAX, reinterpret_cast<LPARAM>(range.data()));
  SetValue({});
}

void DayField::SetValue(Date ValueA) {
  mShownDay = KnownDay(ReadClock(ValueA).day);
  mValue = ValueA;
  SYSTEMTIME time = OnDay(mShownDay);
  SendMessageW(Window(), MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&time));
}

// It tells of days that did not change, too; every other minute, for one.
bool DayField::Take(const NMHDR& NoteA) {
  if (static_cast<int>(NoteA.idFrom) != mId || NoteA.code != MCN_SELCHANGE) return false;
  const double day = DayOf(reinterpret_cast<const NMSELCHANGE&>(NoteA).stSelStart);
  if (day == mShownDay) return false;
  mShownDay = day;
  mValue = Date::Unchecked(day);
  return true;
}

SIZE DayField::Measure() const {
  RECT needed{};
  SendMessageW(Window(), MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&needed));
  const auto today = static_cast<LONG>(SendMessageW(Window(), MCM_GETMAXTODAYWIDTH, 0, 0));
  return {std::max(needed.right, today), needed.bottom};
}

}  // namespace mur::win32
