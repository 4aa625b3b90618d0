#include <windows.h>

#include <murtimeline/automation/format_letter_case.h>
#include <murtimeline/automation/narrow.h>

namespace mur {

// The platform changes unit for unit, in place, and leaves lone surrogates alone.
void ApplyLetterCase(String& TextA, LetterCase LetterCaseA) {
  if (LetterCaseA == LetterCase::AsIs || TextA.empty()) return;
  const DWORD direction = LetterCaseA == LetterCase::Upper ? LCMAP_UPPERCASE : LCMAP_LOWERCASE;
  auto* const units = reinterpret_cast<wchar_t*>(TextA.data());
  const int size = Narrow<int>(TextA.size());
  LCMapStringEx(LOCALE_NAME_INVARIANT, direction, units, size, units, size, nullptr, nullptr, 0);
}

}  // namespace mur
