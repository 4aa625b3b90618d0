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
/// The build chooses the implementation: the portable engine with the data of ICU, or with that of Windows,
/// which also writes the regional dates itself. Both pass the vectors of tests/automation/format_vectors.txt.
/// An object of this class may be used by several threads at once.
class MUR_API RegionalServices {
 public:
  virtual ~RegionalServices();

  /// `ValueA` by a named format ("Long Date", "Fixed", ...; letter case ignored) or a user-defined one
  /// ("hh:nn:ss", "0.000", "@@@-@@", ...).
  ///
  /// The first placeholder of a user-defined pattern decides whether it formats dates, numbers or texts; the
  /// value is converted to that. An empty pattern gives the default conversion.
  /// - Empty and Null give the empty string, or the section of the pattern that is meant for them.
  /// - A text that writes no number is given back unchanged by date and number patterns.
  /// - Numbers are rounded as decimals of 15 significant digits, halves away from zero, without a minus on
  ///   what shows as zero. Dates are rounded to the nearest second.
  /// - A number that is not finite gives "NaN", "Infinity" or "-Infinity" by every number pattern.
  ///
  /// Throws TypeMismatch for objects, foreign values and Missing, and Overflow for a date pattern on a value
  /// outside the date range or not finite.
  virtual String Format(const Variant& ValueA, StringView PatternA) const = 0;

  /// The default date-to-text conversion: short date and long time, the date alone at midnight, the time
  /// alone on day zero. Throws Overflow outside the date range.
  virtual String DateToText(Date ValueA) const = 0;

  /// The default number-to-text conversion: shortest form, up to 15 significant digits ("0.1", "1E+15",
  /// "1.5E-05"), the region's decimal separator; "NaN", "Infinity" or "-Infinity".
  virtual String NumberToText(double ValueA) const = 0;
};

/// The services in force on this thread: the user's own region unless something else was set.
MUR_API const RegionalServices& Regional();

/// Services for a locale name such as "en-US" or "de_DE.UTF-8"; the empty name is the user's own region. A
/// name that is unknown or neutral ("C", "POSIX") gives en-US.
MUR_API std::unique_ptr<RegionalServices> MakeRegionalServices(const std::string& LocaleNameA);

/// Puts another region in force on this thread while it lives; tests set en-US. Scopes nest.
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
