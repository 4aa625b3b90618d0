#include <murtimeline/automation/regional.h>

namespace mur {
namespace {
thread_local const RegionalServices* tScope = nullptr;
}

RegionalServices::~RegionalServices() = default;

const RegionalServices& Regional() {
  if (tScope) return *tScope;
  // Never destroyed, so that objects which outlive main can still write their texts.
  static const RegionalServices& own = *MakeRegionalServices("").release();
  return own;
}

RegionalScope::RegionalScope(const std::string& LocaleNameA)
    : mServices(MakeRegionalServices(LocaleNameA)), mOuter(tScope) {
  tScope = mServices.get();
}

RegionalScope::~RegionalScope() {
  tScope = mOuter;
}

}  // namespace mur
