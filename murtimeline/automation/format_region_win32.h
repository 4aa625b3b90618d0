#pragma once

#include <cstdint>
#include <string>

#include <murtimeline/automation/format_region.h>

namespace mur {

/// The platform's number for a locale such as "de-DE" or "de_DE.UTF-8"; the empty name is the user's own,
/// with what the user changed in it. Locales that are unknown or neutral ("C", "POSIX") give en-US.
std::uint32_t FindLocale(const std::string& LocaleNameA);

/// The data of a locale that `FindLocale` gave.
Region LoadRegion(std::uint32_t LocaleA);

}  // namespace mur
