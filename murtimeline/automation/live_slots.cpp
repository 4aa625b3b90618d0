#include <bit>

#include <murtimeline/automation/live_slots.h>

namespace mur {
namespace {

// The position of the RankA-th set bit, from 0.
std::size_t SelectBit(std::uint64_t WordA, std::size_t RankA) {
  for (; RankA > 0; --RankA) WordA &= WordA - 1;
  return static_cast<std::size_t>(std::countr_zero(WordA));
}

}  // namespace

void LiveSlots::Append() {
  if (mSize % 64 == 0) {
    mWords.push_back(0);
    mCountedWords.push_back(0);
    // The new node of the tree sums the words below it: those of its children in the tree.
    const std::size_t node = mWords.size();
    std::uint32_t sum = 0;
    for (std::size_t child = node - 1; child > (node & (node - 1)); child &= child - 1)
      sum += mTree[child - 1];
    mTree.push_back(sum);
  }
  const std::uint64_t bit = std::uint64_t{1} << (mSize % 64);
  mWords.back() |= bit;
  mCountedWords.back() |= bit;
  ++mTree.back();
  ++mSize;
  ++mCounted;
}

void LiveSlots::Remove(std::size_t SlotA) {
  const std::uint64_t bit = std::uint64_t{1} << (SlotA % 64);
  mWords[SlotA / 64] &= ~bit;
  if (SlotA == mFront) {
    ++mGoneFromFront;
    mFront = NextLive(mFront);
    return;
  }
  mCountedWords[SlotA / 64] &= ~bit;
  --mCounted;
  for (std::size_t node = SlotA / 64 + 1; node <= mTree.size(); node += node & (~node + 1)) --mTree[node - 1];
}

std::size_t LiveSlots::NextLive(std::size_t SlotA) const {
  if (SlotA >= mSize) return mSize;
  std::size_t word = SlotA / 64;
  std::uint64_t bits = mWords[word] & (~std::uint64_t{0} << (SlotA % 64));
  while (bits == 0) {
    if (++word == mWords.size()) return mSize;
    bits = mWords[word];
  }
  return word * 64 + static_cast<std::size_t>(std::countr_zero(bits));
}

std::size_t LiveSlots::Select(std::size_t RankA) const {
  std::size_t rest = RankA + mGoneFromFront;
  if (mCounted == mSize) return rest;  // without holes, rank and slot are the same
  std::size_t word = 0;
  for (std::size_t step = std::bit_floor(mTree.size()); step > 0; step /= 2)
    if (word + step <= mTree.size() && mTree[word + step - 1] <= rest) {
      word += step;
      rest -= mTree[word - 1];
    }
  return word * 64 + SelectBit(mCountedWords[word], rest);
}

std::size_t LiveSlots::Rank(std::size_t SlotA) const {
  const std::uint64_t below = (std::uint64_t{1} << (SlotA % 64)) - 1;
  std::size_t rank = static_cast<std::size_t>(std::popcount(mCountedWords[SlotA / 64] & below));
  for (std::size_t node = SlotA / 64; node > 0; node &= node - 1) rank += mTree[node - 1];
  return rank - mGoneFromFront;
}

void LiveSlots::Reset(std::size_t CountA) {
  *this = LiveSlots();
  while (mSize < CountA) Append();
}

}  // namespace mur
