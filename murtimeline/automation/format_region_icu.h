#pragma once

#include <string>

#include <murtimeline/automation/format_region.h>

namespace mur {

/// The data of a locale such as "de-DE" or "de_DE.UTF-8"; the empty name is the user's own. Locales that are
/// unknown or neutral ("C", "POSIX") give en-US.
Region LoadRegion(const std::string& LocaleNameA);

}  // namespace mur
