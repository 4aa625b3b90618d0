#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <murtimeline/automation/format_letter_case.h>

namespace mur {

void ApplyLetterCase(String& TextA, LetterCase LetterCaseA) {
  if (LetterCaseA == LetterCase::AsIs) return;
  const auto change = LetterCaseA == LetterCase::Upper ? u_toupper : u_tolower;
  for (std::size_t i = 0; i < TextA.size(); ++i) {
    const bool paired = U16_IS_LEAD(TextA[i]) && i + 1 < TextA.size() && U16_IS_TRAIL(TextA[i + 1]);
    if (!paired) {
      TextA[i] = static_cast<char16_t>(change(TextA[i]));
      continue;
    }
    // A pair stays a pair: no letter outside the basic plane has its other case inside.
    const UChar32 changed = change(U16_GET_SUPPLEMENTARY(TextA[i], TextA[i + 1]));
    TextA[i] = U16_LEAD(changed);
    TextA[++i] = U16_TRAIL(changed);
  }
}

}  // namespace mur
