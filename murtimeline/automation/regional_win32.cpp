#include <array>
#include <memory>

#include <windows.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/format_picture.h>
#include <murtimeline/automation/format_region_win32.h>
#include <murtimeline/automation/format_services.h>
#include <murtimeline/automation/narrow.h>

namespace mur {
namespace {

// Whole seconds: the platform would round, but not everywhere in one way.
DATE TimeOf(const Moment& MomentA) {
  return ((MomentA.hour * 60 + MomentA.minute) * 60 + MomentA.second) / kSecondsPerDay;
}

DATE DaysOf(const Moment& MomentA) {
  const DATE time = TimeOf(MomentA);
  return MomentA.dayNumber < 0 ? MomentA.dayNumber - time : MomentA.dayNumber + time;
}

// The platform writes dates as the region has them, which may follow other calendars and inflect the names of
// months. User-defined formats are the portable engine's: the platform's Format writes a text of more than
// 255 units past the end of its memory on some systems, and 1E+300 by "0.00" is one.
class PlatformServices final : public FormatServices {
 public:
  explicit PlatformServices(LCID LocaleA) : FormatServices(LoadRegion(LocaleA)), mLocale(LocaleA) {}

  String Format(const Variant& ValueA, StringView PatternA) const override {
    const RegionalFormat* format = FindFormat(PatternA);
    const auto number = format ? ValueA.Number() : std::nullopt;
    if (!number) return FormatServices::Format(ValueA, PatternA);
    return (this->*format->write)(MomentOf(Date::Unchecked(*number)));
  }

  String DateToText(Date ValueA) const override { return GeneralDate(MomentOf(ValueA)); }

 private:
  struct RegionalFormat {
    StringView name;
    String (PlatformServices::*write)(const Moment&) const;
  };

  static const RegionalFormat* FindFormat(StringView PatternA) {
    static constexpr RegionalFormat kFormats[] = {{u"general date", &PlatformServices::GeneralDate},
                                                  {u"long date", &PlatformServices::LongDate},
                                                  {u"short date", &PlatformServices::ShortDate},
                                                  {u"long time", &PlatformServices::LongTime}};
    for (const RegionalFormat& format : kFormats)
      if (IsWord(PatternA, format.name)) return &format;
    return nullptr;
  }

  String GeneralDate(const Moment& MomentA) const { return DateText(DaysOf(MomentA), 0); }
  String LongDate(const Moment& MomentA) const { return DayText(MomentA, DATE_LONGDATE, u"dddddd"); }
  String ShortDate(const Moment& MomentA) const { return DayText(MomentA, DATE_SHORTDATE, u"ddddd"); }
  // Without its day, whose midnight some systems leave empty.
  String LongTime(const Moment& MomentA) const { return DateText(TimeOf(MomentA), VAR_TIMEVALUEONLY); }

  // The platform's calendar starts in 1601; days before are the engine's.
  String DayText(const Moment& MomentA, DWORD FormatA, StringView PatternA) const {
    SYSTEMTIME day{};
    day.wYear = Narrow<WORD>(MomentA.year);
    day.wMonth = Narrow<WORD>(MomentA.month);
    day.wDay = Narrow<WORD>(MomentA.day);
    std::array<wchar_t, 256> text;
    const int size =
        GetDateFormatW(mLocale, FormatA, &day, nullptr, text.data(), static_cast<int>(text.size()));
    if (size == 0) return FormatServices::Format(Date::Unchecked(DaysOf(MomentA)), PatternA);
    return PlainText(String(text.data(), text.data() + size - 1));
  }

  String DateText(DATE DaysA, ULONG FlagsA) const {
    BSTR text = nullptr;
    if (FAILED(VarBstrFromDate(DaysA, mLocale, FlagsA, &text)))
      throw AutomationError(ErrorCode::InvalidProcedureCall);
    const std::unique_ptr<OLECHAR, decltype(&SysFreeString)> owner(text, SysFreeString);
    return PlainText(String(text, text + SysStringLen(text)));
  }

  const LCID mLocale;
};

}  // namespace

std::unique_ptr<RegionalServices> MakeRegionalServices(const std::string& LocaleNameA) {
  return std::make_unique<PlatformServices>(FindLocale(LocaleNameA));
}

}  // namespace mur
