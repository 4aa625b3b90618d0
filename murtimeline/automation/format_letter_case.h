#pragma once

#include <murtimeline/automation/string.h>

namespace mur {

enum class LetterCase { AsIs, Lower, Upper };

/// Puts `TextA` into a letter case, letter by letter: no letter becomes two, lone surrogates stay.
void ApplyLetterCase(String& TextA, LetterCase LetterCaseA);

}  // namespace mur
