#include <array>
#include <bit>
#include <cstring>

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

// Loads four units; true when all of them are ASCII. Lanes are in the order of this machine, as in
// FoldedHash.
bool LoadFourAscii(const char16_t* UnitsA, std::uint64_t& FourA) {
  std::memcpy(&FourA, UnitsA, sizeof FourA);
  return (FourA & 0xFF80'FF80'FF80'FF80u) == 0;
}

// Capital letters become small ones: adding moves bit 7 of each lane to whether it lies at or behind a
// letter.
std::uint64_t FoldFourAscii(std::uint64_t FourA) {
  constexpr std::uint64_t kEach = 0x0001'0001'0001'0001u;
  const std::uint64_t capital = (FourA + kEach * (0x80 - u'A')) & ~(FourA + kEach * (0x80 - u'Z' - 1));
  return FourA | ((capital & kEach * 0x80) >> 2);
}

// A hash over folded units, four at a time.
class FoldedHash {
 public:
  void AddFour(std::uint64_t FourA) {
    // The constant is that of the 64-bit FNV hash; the rotation lets high bits reach low ones again.
    mHash = std::rotl((mHash ^ FourA) * 0x100'0000'01B3u, 29);
    mUnits += 4;
  }
  void Add(char32_t CodePointA) {
    if (CodePointA >= 0x10000) AddUnit(static_cast<char16_t>(CodePointA >> 16));
    AddUnit(static_cast<char16_t>(CodePointA & 0xFFFF));
  }
  std::uint32_t Result() {
    const std::size_t units = mUnits + mPending;
    while (mPending > 0) AddUnit(0);
    // The finisher of MurmurHash3 (Austin Appleby, public domain).
    std::uint64_t hash = mHash ^ units;
    hash = (hash ^ (hash >> 33)) * 0xFF51AFD7ED558CCDu;
    hash = (hash ^ (hash >> 33)) * 0xC4CEB9FE1A85EC53u;
    return static_cast<std::uint32_t>(hash ^ (hash >> 33));
  }

 private:
  void AddUnit(char16_t UnitA) {
    mLanes[mPending++] = UnitA;
    if (mPending < mLanes.size()) return;
    std::uint64_t four = 0;
    std::memcpy(&four, mLanes.data(), sizeof four);
    mPending = 0;
    AddFour(four);
  }

  std::uint64_t mHash = 0xCBF2'9CE4'8422'2325u;
  std::size_t mUnits = 0;
  std::array<char16_t, 4> mLanes{};
  std::size_t mPending = 0;
};

std::uint32_t HashFolded(StringView TextA) {
  FoldedHash hash;
  std::size_t i = 0;
  for (std::uint64_t four = 0; i + 4 <= TextA.size() && LoadFourAscii(TextA.data() + i, four); i += 4)
    hash.AddFour(FoldFourAscii(four));
  while (i < TextA.size()) hash.Add(NextFolded(TextA, i));
  return hash.Result();
}

std::size_t StartOfLastCodePoint(StringView TextA) {
  const std::size_t size = TextA.size();
  return size >= 2 && IsTrail(TextA[size - 1]) && IsLead(TextA[size - 2]) ? size - 2 : size - 1;
}

}  // namespace

bool EqualIgnoringCase(StringView LeftA, StringView RightA) {
  if (IsSameText(LeftA, RightA)) return true;
  std::size_t left = 0, right = 0;
  while (left < LeftA.size() && right < RightA.size())
    if (NextFolded(LeftA, left) != NextFolded(RightA, right)) return false;
  return left == LeftA.size() && right == RightA.size();
}

// Keys that differ in their last character alone, as numbered ones do, get hashes side by side: whoever adds
// or walks them in order then stays within a few cache lines of a table instead of missing the cache each
// time.
std::uint32_t HashIgnoringCase(StringView TextA) {
  if (TextA.empty()) return 0;
  std::size_t last = StartOfLastCodePoint(TextA);
  const std::uint32_t front = HashFolded(TextA.substr(0, last));
  return (front << 3) + static_cast<std::uint32_t>(NextFolded(TextA, last));
}

std::size_t FindIgnoringCase(StringView TextA, StringView PatternA, std::size_t FromA) {
  if (FromA > TextA.size()) return StringView::npos;
  for (std::size_t start = FromA; start + PatternA.size() <= TextA.size(); ++start)
    if (EqualIgnoringCase(TextA.substr(start, PatternA.size()), PatternA)) return start;
  return StringView::npos;
}

}  // namespace mur
