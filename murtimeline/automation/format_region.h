#pragma once

#include <array>
#include <cstddef>

#include <murtimeline/automation/string.h>

namespace mur {

/// What a region contributes to formatted texts; the preset values are those of en-US.
///
/// The pattern fields are written in the pattern language of `RegionalServices::Format`, with every literal
/// escaped. They must not use the letters that stand for themselves (c, ddddd, dddddd, ttttt).
struct Region {
  String decimalSeparator = u".";
  String groupSeparator = u",";
  std::size_t primaryGroup = 3;    ///< digits in the group next to the decimal separator; 0 is no grouping
  std::size_t secondaryGroup = 3;  ///< digits in every further group

  String dateSeparator = u"/";
  String timeSeparator = u":";
  String amText = u"AM";
  String pmText = u"PM";
  std::array<String, 12> monthNames = {u"January",   u"February", u"March",    u"April",
                                       u"May",       u"June",     u"July",     u"August",
                                       u"September", u"October",  u"November", u"December"};
  std::array<String, 12> shortMonthNames = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                            u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
  std::array<String, 7> dayNames = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                    u"Thursday", u"Friday", u"Saturday"};
  std::array<String, 7> shortDayNames = {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};

  String shortDate = u"m\\/d\\/yyyy";
  String longDate = u"dddd\\,\\ mmmm\\ d\\,\\ yyyy";
  String longTime = u"h\\:nn\\:ss\\ AMPM";
  String currency = u"\\$#,##0.00;\\(\\$#,##0.00\\)";
};

}  // namespace mur
