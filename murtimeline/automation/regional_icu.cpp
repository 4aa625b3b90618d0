#include <murtimeline/automation/format_region_icu.h>
#include <murtimeline/automation/format_services.h>
#include <murtimeline/automation/regional.h>

namespace mur {

std::unique_ptr<RegionalServices> MakeRegionalServices(const std::string& LocaleNameA) {
  return std::make_unique<FormatServices>(LoadRegion(LocaleNameA));
}

}  // namespace mur
