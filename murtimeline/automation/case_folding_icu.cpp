#include <unicode/uchar.h>

#include <murtimeline/automation/case_folding.h>

namespace mur {

char32_t FoldWideCase(char32_t CodePointA) {
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(CodePointA), U_FOLD_CASE_DEFAULT));
}

}  // namespace mur
