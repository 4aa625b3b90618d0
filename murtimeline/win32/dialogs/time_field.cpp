#include <algorithm>
#include <array>
#include <cmath>

#include <murtimeline/automation/narrow.h>
#include <murtimeline/dialogs/moments.h>
#include <murtimeline/win32/dialogs/time_field.h>
#include <murtimeline/win32/dpi.h>

namespace mur::win32 {
namespace {

constexpr int kMillisecondsPerSecond = 1000;

// The picker needs a day, too, and knows fewer than we do: any will do.
SYSTEMTIME AtSecond(int SecondA) {
  const auto word = [](int value) { return static_cast<WORD>(value); };
  return {2000, 1, 6, 1, word(SecondA / 3600), word(SecondA / 60 % 60), word(SecondA % 60), 0};
}

int SecondOf(const SYSTEMTIME& TimeA) {
  return TimeA.wHour * 3600 + TimeA.wMinute * 60 + TimeA.wSecond;
}

int SecondOf(const ClockReading& ReadingA) {
  return Narrow<int>(std::floor(ReadingA.milliseconds / kMillisecondsPerSecond));
}

}  // namespace

void TimeField::Add(const wchar_t* FormatA) {
  constexpr ControlKind kPicker{DATETIMEPICK_CLASSW, DTS_TIMEFORMAT | WS_TABSTOP};
  const HWND picker = mControls.Add(mId, kPicker);
  if (FormatA) SendMessageW(picker, DTM_SETFORMATW, 0, reinterpret_cast<LPARAM>(FormatA));
  SetValue({});
}

// Writing the time that is there would disturb the user who is just typing it.
void TimeField::SetValue(Date ValueA) {
  const int second = SecondOf(ReadClock(ValueA));
  mValue = ValueA;
  if (second == mShownSecond) return;
  mShownSecond = second;
  const SYSTEMTIME time = AtSecond(second);
  SendMessageW(mControls.Window(mId), DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
}

// It tells of times that did not change, too.
bool TimeField::Take(const NMHDR& NoteA) {
  if (static_cast<int>(NoteA.idFrom) != mId || NoteA.code != DTN_DATETIMECHANGE) return false;
  const auto& change = reinterpret_cast<const NMDATETIMECHANGE&>(NoteA);
  if (change.dwFlags != GDT_VALID) return false;
  const int second = SecondOf(change.st);
  if (second == mShownSecond) return false;
  ClockReading reading = ReadClock(mValue);
  reading.milliseconds += (second - SecondOf(reading)) * kMillisecondsPerSecond;
  mValue = MomentOf(reading);
  mShownSecond = second;
  return true;
}

// The widest of some times with broad digits, before and after noon, and the arrows beside them.
SIZE TimeField::Measure() const {
  constexpr int kAir = 24;
  LONG widest = 0;
  for (const WORD hour : {WORD{10}, WORD{20}}) {
    const SYSTEMTIME time{2000, 1, 6, 1, hour, 58, 58, 0};
    std::array<wchar_t, 80> text{};
    GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &time, nullptr, text.data(), static_cast<int>(text.size()));
    const StringView shown(reinterpret_cast<const char16_t*>(text.data()));
    widest = std::max(widest, mControls.Measure(mId, shown).cx);
  }
  return {widest + ScrollBarWidthOf(mControls.Window(mId)) + mControls.Scaled(kAir),
          mControls.FieldHeight(mId)};
}

}  // namespace mur::win32
