#include <murtimeline/automation/case_folding.h>

namespace mur {
namespace {

constexpr bool IsLead(char16_t UnitA) {
  return (UnitA & 0xFC00) == 0xD800;
}
constexpr bool IsTrail(char16_t UnitA) {
  return (UnitA & 0xFC00) == 0xDC00;
}

// Reads one folded code point and moves `PositionA` behind it.
char32_t NextFolded(StringView TextA, std::size_t& PositionA) {
  const char16_t unit = TextA[PositionA++];
  if (unit < 0x80) return unit >= u'A' && unit <= u'Z' ? unit + 32u : unit;
  char32_t codePoint = unit;
  if (IsLead(unit) && PositionA < TextA.size() && IsTrail(TextA[PositionA]))
    codePoint = 0x10000 + ((unit & 0x3FFu) << 10) + (TextA[PositionA++] & 0x3FFu);
  return FoldWideCase(codePoint);
}

}  // namespace

bool EqualIgnoringCase(StringView LeftA, StringView RightA) {
  if (LeftA == RightA) return true;
  std::size_t left = 0;
  std::size_t right = 0;
  while (left < LeftA.size() && right < RightA.size())
    if (NextFolded(LeftA, left) != NextFolded(RightA, right)) return false;
  return left == LeftA.size() && right == RightA.size();
}

std::uint32_t HashIgnoringCase(StringView TextA) {
  // FNV-1a over folded code points, then the finisher of MurmurHash3 (Austin Appleby, public domain), because
  // generated keys differ in their last digits only.
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (std::size_t i = 0; i < TextA.size();) hash = (hash ^ NextFolded(TextA, i)) * 0x100000001B3u;
  hash = (hash ^ (hash >> 33)) * 0xFF51AFD7ED558CCDu;
  hash = (hash ^ (hash >> 33)) * 0xC4CEB9FE1A85EC53u;
  return static_cast<std::uint32_t>(hash ^ (hash >> 33));
}

std::size_t FindIgnoringCase(StringView TextA, StringView PatternA, std::size_t FromA) {
  if (FromA > TextA.size()) return StringView::npos;
  for (std::size_t start = FromA; start + PatternA.size() <= TextA.size(); ++start)
    if (EqualIgnoringCase(TextA.substr(start, PatternA.size()), PatternA)) return start;
  return StringView::npos;
}

}  // namespace mur
