#include <algorithm>
#include <cmath>

#include <murtimeline/render/companions/text_fit.h>

namespace mur {
namespace {

constexpr char16_t kEllipsis = 0x2026;
constexpr float kNarrowestGlyph = 0.2F;  // of the text size

// How many units could fit at the very most.
std::size_t MostUnits(float RoomA, float SizeA) {
  constexpr float kMost = 10000;
  const float units = RoomA / std::max(kNarrowestGlyph * SizeA, 0.1F) + 1;
  return static_cast<std::size_t>(std::clamp(std::ceil(units), 1.0F, kMost));
}

bool IsHighSurrogate(char16_t UnitA) {
  return (UnitA & 0xFC00) == 0xD800;
}

// The first `CountA` units, without half a character or a blank at the end.
StringView Beginning(StringView TextA, std::size_t CountA) {
  StringView text = TextA.substr(0, CountA);
  if (CountA < TextA.size() && !text.empty() && IsHighSurrogate(text.back())) text.remove_suffix(1);
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
  return text;
}

}  // namespace

MeasuredText MeasureForRoom(const Surface& SurfaceA, StringView TextA, const TextStyle& StyleA, float RoomA) {
  MeasuredText measured;
  measured.text = TextA.substr(0, MostUnits(RoomA, StyleA.size));
  measured.isCut = measured.text.size() < TextA.size();
  std::replace_if(
      measured.text.begin(), measured.text.end(), [](char16_t unit) { return unit < u' '; }, u' ');
  measured.extent = SurfaceA.MeasureText(measured.text, StyleA);
  return measured;
}

MeasuredText Elided(const Surface& SurfaceA, MeasuredText TextA, const TextStyle& StyleA, float RoomA) {
  if (!TextA.isCut && TextA.extent.width <= RoomA) return TextA;
  MeasuredText best;
  std::size_t fits = 0;
  std::size_t tooLong = TextA.text.size() + 1;
  while (tooLong - fits > 1) {
    const std::size_t middle = fits + (tooLong - fits) / 2;
    String candidate(Beginning(TextA.text, middle));
    const bool isSomething = !candidate.empty();
    candidate += kEllipsis;
    const TextExtent extent = SurfaceA.MeasureText(candidate, StyleA);
    if (extent.width <= RoomA) {
      fits = middle;
      if (isSomething) best = {std::move(candidate), extent, true};
    } else {
      tooLong = middle;
    }
  }
  return best;
}

}  // namespace mur
