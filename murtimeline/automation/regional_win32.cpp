#include <array>
#include <cmath>
#include <memory>

#include <windows.h>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/format_region_win32.h>
#include <murtimeline/automation/format_services.h>

namespace mur {
namespace {

// The text that a function of the automation library answers with.
template <class Function>
String TextFrom(Function FunctionA) {
  BSTR text = nullptr;
  if (FAILED(FunctionA(&text))) throw AutomationError(ErrorCode::InvalidProcedureCall);
  const std::unique_ptr<OLECHAR, decltype(&SysFreeString)> owner(text, SysFreeString);
  return String(text, text + SysStringLen(text));
}

// Whole seconds: the library would round, but not everywhere in one way.
DATE TimeOf(const Moment& MomentA) {
  return ((MomentA.hour * 60 + MomentA.minute) * 60 + MomentA.second) / kSecondsPerDay;
}

DATE DaysOf(const Moment& MomentA) {
  const DATE time = TimeOf(MomentA);
  return MomentA.dayNumber < 0 ? MomentA.dayNumber - time : MomentA.dayNumber + time;
}

// The automation library converts to text and writes the regional date formats, which may follow other
// calendars and inflect the names of months. User-defined formats are the portable engine's: some systems
// write a text of more than 255 units past the end of their memory, and 1E+300 by "0.00" is one.
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

  String NumberToText(double ValueA) const override {
    if (!std::isfinite(ValueA)) return FormatServices::NumberToText(ValueA);
    return TextFrom([&](BSTR* text) { return VarBstrFromR8(ValueA, mLocale, 0, text); });
  }

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
  String ShortDate(const Moment& MomentA) const { return DateText(DaysOf(MomentA), VAR_DATEVALUEONLY); }
  // Without its day, whose midnight some systems leave empty.
  String LongTime(const Moment& MomentA) const { return DateText(TimeOf(MomentA), VAR_TIMEVALUEONLY); }

  String LongDate(const Moment& MomentA) const {
    wchar_t name[] = L"Long Date";
    std::array<BYTE, 256> tokens{};
    VARIANT date{};
    date.vt = VT_DATE;
    date.date = DaysOf(MomentA);
    return TextFrom([&](BSTR* text) {
      const HRESULT result = VarTokenizeFormatString(name, tokens.data(), static_cast<int>(tokens.size()), 0,
                                                     0, mLocale, nullptr);
      return FAILED(result) ? result : VarFormatFromTokens(&date, name, tokens.data(), 0, text, mLocale);
    });
  }

  String DateText(DATE DaysA, ULONG FlagsA) const {
    return TextFrom([&](BSTR* text) { return VarBstrFromDate(DaysA, mLocale, FlagsA, text); });
  }

  const LCID mLocale;
};

}  // namespace

std::unique_ptr<RegionalServices> MakeRegionalServices(const std::string& LocaleNameA) {
  return std::make_unique<PlatformServices>(FindLocale(LocaleNameA));
}

}  // namespace mur
