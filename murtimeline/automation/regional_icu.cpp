#include <murtimeline/automation/format_services.h>
#include <murtimeline/automation/regional.h>

namespace mur {

std::unique_ptr<RegionalServices> MakeRegionalServices(const std::string& LocaleNameA) {
  static_cast<void>(LocaleNameA);
  return std::make_unique<FormatServices>(Region());
}

}  // namespace mur
