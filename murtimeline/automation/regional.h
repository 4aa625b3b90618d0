#pragma once

#include <memory>
#include <string>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/automation/variant.h>

namespace mur {

/// Texts that depend on the user's region: the automation runtime's Format and default conversions.
///
/// One implementation stands on ICU, one on the Windows automation library; the build chooses. All of them
/// pass the vectors of tests/automation/format_vectors.txt.
class MUR_API RegionalServices {
 public:
  virtual ~RegionalServices();

  /// `ValueA` by a named format ("Long Date", "Fixed", ...) or a user-defined one ("hh:nn:ss", "0.000", ...).
  /// An empty pattern gives the default conversion. Empty and Null give the empty string. Throws TypeMismatch
  /// for an object and Overflow for a date pattern on a value outside the date range.
  virtual String Format(const Variant& ValueA, StringView PatternA) const = 0;

  /// The default date-to-text conversion: short date and long time, the date alone at midnight, the time
  /// alone on day zero. Throws Overflow outside the date range.
  virtual String DateToText(Date ValueA) const = 0;

  /// The default number-to-text conversion: shortest form, up to 15 significant digits, the region's decimal
  /// separator.
  virtual String NumberToText(double ValueA) const = 0;
};

/// The services in force on this thread: the user's own region unless something else was set.
MUR_API const RegionalServices& Regional();

/// Services for a locale name such as "en-US" or "de-DE"; the empty name is the user's own region.
MUR_API std::unique_ptr<RegionalServices> MakeRegionalServices(const std::string& LocaleNameA);

/// Puts another region in force while it lives; tests set en-US.
class MUR_API RegionalScope {
 public:
  explicit RegionalScope(const std::string& LocaleNameA);
  ~RegionalScope();
  RegionalScope(const RegionalScope&) = delete;
  RegionalScope& operator=(const RegionalScope&) = delete;

 private:
  std::unique_ptr<RegionalServices> mServices;
  const RegionalServices* mOuter;
};

}  // namespace mur
