#pragma once

namespace mur {

/// Asks the processor to fetch what is read soon. A hint; does nothing where the compiler knows no way.
inline void Prefetch([[maybe_unused]] const void* AddressA) {
#ifdef __GNUC__
  __builtin_prefetch(AddressA);
#endif
}

}  // namespace mur
