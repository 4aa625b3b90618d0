#pragma once

#include <murtimeline/automation/format_date.h>
#include <murtimeline/automation/format_decimal.h>
#include <murtimeline/automation/format_pattern_cache.h>
#include <murtimeline/automation/format_region.h>
#include <murtimeline/automation/regional.h>

namespace mur {

/// Regional services by the portable engine and the data of one region.
class FormatServices : public RegionalServices {
 public:
  explicit FormatServices(Region RegionA);
  // The date writer refers to the region beside it.
  FormatServices(const FormatServices&) = delete;
  FormatServices& operator=(const FormatServices&) = delete;

  String Format(const Variant& ValueA, StringView PatternA) const override;
  String DateToText(Date ValueA) const override;
  String NumberToText(double ValueA) const override;

 private:
  String DefaultText(const Variant& ValueA) const;
  String FormatAsNumber(const Variant& ValueA, const NumberPattern& PatternA) const;
  String FormatAsDate(const Variant& ValueA, const DatePattern& PatternA) const;

  const Region mRegion;
  const DateWriter mDates;
  mutable PatternCache mPatterns;
};

}  // namespace mur
