#include <algorithm>
#include <array>
#include <iterator>

#include <windows.h>

#include <murtimeline/automation/format_picture.h>
#include <murtimeline/automation/format_region_win32.h>

namespace mur {
namespace {

const wchar_t* Wide(const String& TextA) {
  return reinterpret_cast<const wchar_t*>(TextA.c_str());
}

// "de_DE.UTF-8@euro" is "de-DE" here.
String PlatformName(const std::string& LocaleNameA) {
  String name = FromUtf8(LocaleNameA.substr(0, LocaleNameA.find_first_of(".@")));
  for (char16_t& unit : name)
    if (unit == u'_') unit = u'-';
  return name;
}

// Name and country of a language without one are those that the platform prefers for it.
LCID CompleteLocale(const String& NameA) {
  wchar_t complete[LOCALE_NAME_MAX_LENGTH];
  if (NameA.empty() || !IsValidLocaleName(Wide(NameA))) return 0;
  if (ResolveLocaleName(Wide(NameA), complete, LOCALE_NAME_MAX_LENGTH) <= 1) return 0;
  return LocaleNameToLCID(complete, 0);
}

class LocaleData {
 public:
  explicit LocaleData(LCID LocaleA) : mLocale(LocaleA) {}

  String Text(LCTYPE WhatA) const {
    wchar_t text[256];
    const int size = GetLocaleInfoW(mLocale, WhatA, text, static_cast<int>(std::size(text)));
    return size > 0 ? String(text, text + size - 1) : String();
  }

  std::size_t Number(LCTYPE WhatA) const {
    DWORD number = 0;
    GetLocaleInfoW(mLocale, WhatA | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&number),
                   sizeof number / sizeof(wchar_t));
    return number;
  }

  // Names that the platform numbers one after the other.
  template <std::size_t Count>
  void TakeNames(std::array<String, Count>& NamesA, LCTYPE FirstA) const {
    for (String& name : NamesA) name = PlainText(Text(FirstA++));
  }

 private:
  const LCID mLocale;
};

// The platform's weeks start on Monday.
void TakeDayNames(std::array<String, 7>& NamesA, const LocaleData& DataA, LCTYPE FirstA) {
  DataA.TakeNames(NamesA, FirstA);
  std::rotate(NamesA.begin(), NamesA.end() - 1, NamesA.end());
}

void LoadDates(Region& RegionA, const LocaleData& DataA) {
  DataA.TakeNames(RegionA.monthNames, LOCALE_SMONTHNAME1);
  DataA.TakeNames(RegionA.shortMonthNames, LOCALE_SABBREVMONTHNAME1);
  TakeDayNames(RegionA.dayNames, DataA, LOCALE_SDAYNAME1);
  TakeDayNames(RegionA.shortDayNames, DataA, LOCALE_SABBREVDAYNAME1);
  RegionA.amText = PlainText(DataA.Text(LOCALE_S1159));
  RegionA.pmText = PlainText(DataA.Text(LOCALE_S2359));
  const String date = DataA.Text(LOCALE_SSHORTDATE);
  const String time = DataA.Text(LOCALE_STIMEFORMAT);
  RegionA.shortDate = FromWindowsPicture(date);
  RegionA.longDate = FromWindowsPicture(DataA.Text(LOCALE_SLONGDATE));
  RegionA.longTime = FromWindowsPicture(time);
  RegionA.dateSeparator = PictureSeparator(date, RegionA.dateSeparator);
  RegionA.timeSeparator = PictureSeparator(time, RegionA.timeSeparator);
}

// Sizes of groups from the decimal separator on, as in "3;0" or "3;2;0"; a 0 repeats what stands before it.
std::size_t GroupSize(const String& SizesA, std::size_t IndexA) {
  const char16_t digit = SizesA.size() > 2 * IndexA ? SizesA[2 * IndexA] : u'0';
  return digit > u'0' && digit <= u'9' ? digit - std::size_t{u'0'} : 0;
}

// A narrow no-break space between digits becomes the no-break space that older texts have.
String Separator(String TextA) {
  return TextA == u"\u202F" ? u"\u00A0" : TextA;
}

void LoadNumbers(Region& RegionA, const LocaleData& DataA) {
  RegionA.decimalSeparator = Separator(DataA.Text(LOCALE_SDECIMAL));
  RegionA.groupSeparator = Separator(DataA.Text(LOCALE_STHOUSAND));
  const String sizes = DataA.Text(LOCALE_SGROUPING);
  RegionA.primaryGroup = GroupSize(sizes, 0);
  const std::size_t secondary = GroupSize(sizes, 1);
  RegionA.secondaryGroup = secondary > 0 ? secondary : RegionA.primaryGroup;
}

// Where the platform's modes put the currency ($) around the amount (n).
constexpr StringView kPositiveModes[] = {u"$n", u"n$", u"$ n", u"n $"};
constexpr StringView kNegativeModes[] = {u"($n)", u"-$n",  u"$-n",   u"$n-",  u"(n$)", u"-n$",
                                         u"n-$",  u"n$-",  u"-n $",  u"-$ n", u"n $-", u"$ n-",
                                         u"$ -n", u"n- $", u"($ n)", u"(n $)"};

template <std::size_t Count>
StringView Mode(const StringView (&ModesA)[Count], std::size_t IndexA) {
  return ModesA[IndexA < Count ? IndexA : 0];
}

String Filled(StringView ModeA, const String& CurrencyA, const String& AmountA) {
  String pattern;
  for (const char16_t unit : ModeA) {
    if (unit == u'n')
      pattern += AmountA;
    else
      pattern += EscapedLiterals(unit == u'$' ? StringView(CurrencyA) : StringView(&unit, 1));
  }
  return pattern;
}

void LoadCurrency(Region& RegionA, const LocaleData& DataA) {
  String amount = u"#,##0";
  if (const std::size_t decimals = DataA.Number(LOCALE_ICURRDIGITS); decimals > 0)
    (amount += u'.').append(decimals, u'0');
  const String currency = DataA.Text(LOCALE_SCURRENCY);
  RegionA.currency = Filled(Mode(kPositiveModes, DataA.Number(LOCALE_ICURRENCY)), currency, amount) + u';' +
                     Filled(Mode(kNegativeModes, DataA.Number(LOCALE_INEGCURR)), currency, amount);
}

}  // namespace

std::uint32_t FindLocale(const std::string& LocaleNameA) {
  if (LocaleNameA.empty()) return LOCALE_USER_DEFAULT;
  const LCID locale = CompleteLocale(PlatformName(LocaleNameA));
  // The automation library knows locales by number and all that have none by one and the same.
  const bool hasNumber = locale != 0 && locale != LOCALE_CUSTOM_UNSPECIFIED && locale != LOCALE_INVARIANT;
  return hasNumber ? locale : MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
}

Region LoadRegion(std::uint32_t LocaleA) {
  const LocaleData data(LocaleA);
  Region region;
  LoadDates(region, data);
  LoadNumbers(region, data);
  LoadCurrency(region, data);
  return region;
}

}  // namespace mur
