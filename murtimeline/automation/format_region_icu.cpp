#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

#include <unicode/decimfmt.h>
#include <unicode/dtfmtsym.h>
#include <unicode/localebuilder.h>
#include <unicode/smpdtfmt.h>

#include <murtimeline/automation/format_picture.h>
#include <murtimeline/automation/format_region_icu.h>
#include <murtimeline/automation/narrow.h>

namespace mur {
namespace {

using icu::DateFormatSymbols;
using icu::DecimalFormatSymbols;

String FromIcu(const icu::UnicodeString& TextA) {
  return String(TextA.getBuffer(), static_cast<std::size_t>(TextA.length()));
}

// The environment is asked first because the library below looks at the message language only.
std::string OwnLocaleName() {
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"})
    if (const char* name = std::getenv(variable); name && *name) return name;
  return icu::Locale::getDefault().getName();
}

bool IsKnown(const icu::Locale& LocaleA) {
  std::int32_t count = 0;
  const icu::Locale* available = icu::Locale::getAvailableLocales(count);
  for (std::int32_t i = 0; i < count; ++i)
    if (std::strcmp(available[i].getLanguage(), LocaleA.getLanguage()) == 0) return true;
  return false;
}

// Dates are Gregorian and digits are 0 to 9 everywhere.
icu::Locale FindLocale(const std::string& LocaleNameA) {
  const std::string name = LocaleNameA.empty() ? OwnLocaleName() : LocaleNameA;
  icu::Locale locale = icu::Locale::createCanonical(name.c_str());
  if (!IsKnown(locale)) locale = icu::Locale::getUS();
  UErrorCode status = U_ZERO_ERROR;
  locale.addLikelySubtags(status);
  return icu::LocaleBuilder()
      .setLocale(locale)
      .setVariant("")
      .setUnicodeLocaleKeyword("ca", "gregory")
      .setUnicodeLocaleKeyword("nu", "latn")
      .build(status);
}

template <std::size_t Count>
void TakeNames(std::array<String, Count>& NamesA, const icu::UnicodeString* FirstA) {
  for (String& name : NamesA) name = PlainText(FromIcu(*FirstA++));
}

void LoadNames(Region& RegionA, const icu::Locale& LocaleA) {
  UErrorCode status = U_ZERO_ERROR;
  const DateFormatSymbols symbols(LocaleA, status);
  std::int32_t count = 0;
  TakeNames(RegionA.monthNames, symbols.getMonths(count));
  // The abbreviations for use on their own have no dots where the language can do without.
  TakeNames(RegionA.shortMonthNames,
            symbols.getMonths(count, DateFormatSymbols::STANDALONE, DateFormatSymbols::ABBREVIATED));
  // Weekdays start at index 1.
  TakeNames(RegionA.dayNames, symbols.getWeekdays(count) + 1);
  TakeNames(RegionA.shortDayNames,
            symbols.getWeekdays(count, DateFormatSymbols::STANDALONE, DateFormatSymbols::ABBREVIATED) + 1);
  const icu::UnicodeString* halves = symbols.getAmPmStrings(count);
  RegionA.amText = PlainText(FromIcu(halves[0]));
  RegionA.pmText = PlainText(FromIcu(halves[1]));
}

// The pattern of a new date format, which is taken over.
String CldrPattern(icu::DateFormat* FormatA) {
  const std::unique_ptr<icu::DateFormat> format(FormatA);
  icu::UnicodeString pattern;
  dynamic_cast<const icu::SimpleDateFormat&>(*format).toPattern(pattern);
  return FromIcu(pattern);
}

void LoadDatePatterns(Region& RegionA, const icu::Locale& LocaleA) {
  const String date = CldrPattern(icu::DateFormat::createDateInstance(icu::DateFormat::kShort, LocaleA));
  const String longDate = CldrPattern(icu::DateFormat::createDateInstance(icu::DateFormat::kFull, LocaleA));
  const String time = CldrPattern(icu::DateFormat::createTimeInstance(icu::DateFormat::kMedium, LocaleA));
  RegionA.shortDate = FromCldrPattern(date);
  RegionA.longDate = FromCldrPattern(longDate);
  RegionA.longTime = FromCldrPattern(time);
  RegionA.dateSeparator = PictureSeparator(date, RegionA.dateSeparator);
  RegionA.timeSeparator = PictureSeparator(time, RegionA.timeSeparator);
}

// A narrow no-break space between digits becomes the no-break space that older texts have.
String Separator(const DecimalFormatSymbols& SymbolsA, DecimalFormatSymbols::ENumberFormatSymbol SymbolA) {
  const String separator = FromIcu(SymbolsA.getConstSymbol(SymbolA));
  return separator == u"\u202F" ? u"\u00A0" : separator;
}

std::unique_ptr<icu::DecimalFormat> NumberFormatOf(const icu::Locale& LocaleA, UNumberFormatStyle StyleA) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createInstance(LocaleA, StyleA, status));
  return std::make_unique<icu::DecimalFormat>(dynamic_cast<const icu::DecimalFormat&>(*format));
}

void LoadNumbers(Region& RegionA, const icu::Locale& LocaleA) {
  const auto format = NumberFormatOf(LocaleA, UNUM_DECIMAL);
  const DecimalFormatSymbols& symbols = *format->getDecimalFormatSymbols();
  RegionA.decimalSeparator = Separator(symbols, DecimalFormatSymbols::kDecimalSeparatorSymbol);
  RegionA.groupSeparator = Separator(symbols, DecimalFormatSymbols::kGroupingSeparatorSymbol);
  const auto sizeOr = [](std::int32_t size, std::size_t otherwise) {
    return size > 0 ? Narrow<std::size_t>(size) : otherwise;
  };
  RegionA.primaryGroup = format->isGroupingUsed() ? sizeOr(format->getGroupingSize(), 0) : 0;
  RegionA.secondaryGroup = sizeOr(format->getSecondaryGroupingSize(), RegionA.primaryGroup);
}

void LoadCurrency(Region& RegionA, const icu::Locale& LocaleA) {
  const auto format = NumberFormatOf(LocaleA, UNUM_CURRENCY);
  icu::UnicodeString affix;
  String digits = u"#,##0";
  if (const std::int32_t decimals = format->getMinimumFractionDigits(); decimals > 0)
    (digits += u'.').append(Narrow<std::size_t>(decimals), u'0');
  const String prefix = PlainText(FromIcu(format->getPositivePrefix(affix)));
  const String suffix = PlainText(FromIcu(format->getPositiveSuffix(affix)));
  RegionA.currency = EscapedLiterals(prefix) + digits + EscapedLiterals(suffix);
  // The United States write negative amounts in parentheses, everyone else with a minus in front.
  if (std::string_view(LocaleA.getCountry()) == "US") RegionA.currency += u";\\(" + RegionA.currency + u"\\)";
}

}  // namespace

Region LoadRegion(const std::string& LocaleNameA) {
  const icu::Locale locale = FindLocale(LocaleNameA);
  Region region;
  LoadNames(region, locale);
  LoadDatePatterns(region, locale);
  LoadNumbers(region, locale);
  LoadCurrency(region, locale);
  return region;
}

}  // namespace mur
