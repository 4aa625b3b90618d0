#include <algorithm>

#include <murtimeline/render/highlight_memory.h>

namespace mur {

void HighlightMemory::Reserve(std::size_t CountA) {
  mObjects.reserve(CountA);
  mFirsts.reserve(CountA);
  mLasts.reserve(CountA);
  mHighlighted.reserve(CountA / kWordBits + 1);
}

void HighlightMemory::Clear() {
  mObjects.clear();
  mFirsts.clear();
  mLasts.clear();
  mHighlighted.clear();
}

void HighlightMemory::Add(const IMURTimelineObject& ObjectA, const TimeSpan& SpanA, bool HighlightedA) {
  const std::size_t index = Count();
  if (index % kWordBits == 0) mHighlighted.push_back(0);
  mObjects.push_back(&ObjectA);
  mFirsts.push_back(SpanA.first.Days());
  mLasts.push_back(SpanA.last.Days());
  SetHighlighted(index, HighlightedA);
}

void HighlightMemory::SetSpan(std::size_t IndexA, const TimeSpan& SpanA) {
  mFirsts[IndexA] = SpanA.first.Days();
  mLasts[IndexA] = SpanA.last.Days();
}

void HighlightMemory::SetHighlighted(std::size_t IndexA, bool HighlightedA) {
  const Word bit = Word{1} << (IndexA % kWordBits);
  Word& word = mHighlighted[IndexA / kWordBits];
  word = HighlightedA ? word | bit : word & ~bit;
}

HighlightMemory::Word HighlightMemory::ContainingWord(std::size_t WordA, Date TimeA) const {
  const std::size_t begin = WordA * kWordBits;
  const std::size_t count = std::min(kWordBits, Count() - begin);
  const double time = TimeA.Days();
  const double* firsts = mFirsts.data() + begin;
  const double* lasts = mLasts.data() + begin;
  Word word = 0;
  for (std::size_t bit = 0; bit < count; ++bit)
    word |= Word{firsts[bit] <= time && time <= lasts[bit]} << bit;
  return word;
}

}  // namespace mur
