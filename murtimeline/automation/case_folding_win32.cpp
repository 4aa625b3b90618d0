#include <array>
#include <numeric>

#include <windows.h>

#include <murtimeline/automation/case_folding.h>

namespace mur {
namespace {

constexpr std::size_t kPlaneSize = 0x10000;
using Plane = std::array<wchar_t, kPlaneSize>;

struct LetterForm {
  char16_t form, letter;
};

// Further forms of a letter (title case, symbols, letters at the end of a word), which the platform's
// capitals and small letters leave alone.
constexpr LetterForm kFurtherForms[] = {
    {u'\u00B5', u'\u03BC'}, {u'\u017F', u's'},      {u'\u01C5', u'\u01C6'}, {u'\u01C8', u'\u01C9'},
    {u'\u01CB', u'\u01CC'}, {u'\u01F2', u'\u01F3'}, {u'\u0345', u'\u03B9'}, {u'\u03C2', u'\u03C3'},
    {u'\u03D0', u'\u03B2'}, {u'\u03D1', u'\u03B8'}, {u'\u03D5', u'\u03C6'}, {u'\u03D6', u'\u03C0'},
    {u'\u03F0', u'\u03BA'}, {u'\u03F1', u'\u03C1'}, {u'\u03F4', u'\u03B8'}, {u'\u03F5', u'\u03B5'},
    {u'\u1C80', u'\u0432'}, {u'\u1C81', u'\u0434'}, {u'\u1C82', u'\u043E'}, {u'\u1C83', u'\u0441'},
    {u'\u1C84', u'\u0442'}, {u'\u1C85', u'\u0442'}, {u'\u1C86', u'\u044A'}, {u'\u1C87', u'\u0463'},
    {u'\u1C88', u'\uA64B'}, {u'\u1E9B', u'\u1E61'}, {u'\u1E9E', u'\u00DF'}, {u'\u1FBE', u'\u03B9'},
    {u'\u2126', u'\u03C9'}, {u'\u212A', u'k'},      {u'\u212B', u'\u00E5'},
};

// Small letters become capitals and these small ones again, so that letters which share a capital are folded
// together. The platform changes unit for unit, in place, and knows the pairs of the other planes.
template <std::size_t Size>
void Fold(std::array<wchar_t, Size>& UnitsA) {
  constexpr int kSize = static_cast<int>(Size);
  for (const DWORD direction : {DWORD{LCMAP_UPPERCASE}, DWORD{LCMAP_LOWERCASE}})
    LCMapStringEx(LOCALE_NAME_INVARIANT, direction, UnitsA.data(), kSize, UnitsA.data(), kSize, nullptr,
                  nullptr, 0);
}

// All of the basic plane in one go.
const Plane& FoldedPlane() {
  static const Plane folded = [] {
    Plane units;
    std::iota(units.begin(), units.end(), wchar_t{0});
    Fold(units);
    for (const auto& [form, letter] : kFurtherForms) units[form] = letter;
    return units;
  }();
  return folded;
}

}  // namespace

char32_t FoldWideCase(char32_t CodePointA) {
  if (CodePointA < kPlaneSize) return FoldedPlane()[CodePointA];
  std::array<wchar_t, 2> pair = {static_cast<wchar_t>(0xD7C0 + (CodePointA >> 10)),
                                 static_cast<wchar_t>(0xDC00 | (CodePointA & 0x3FF))};
  Fold(pair);
  return 0x10000 + ((pair[0] & 0x3FFu) << 10) + (pair[1] & 0x3FFu);
}

}  // namespace mur
