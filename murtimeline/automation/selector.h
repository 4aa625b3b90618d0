#pragma once

#include <cstddef>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/automation/variant.h>

namespace mur {

/// A key-or-index argument, decided: a string names a key, a number of any kind a 1-based position (rounded
/// half to even); anything else, and a number that is no position, names nothing. Refers to the text that it
/// was made from.
class MUR_API Selector {
 public:
  explicit Selector(const Variant& KeyIndexA);
  explicit Selector(StringView KeyA) : mKey(KeyA), mIsKey(true) {}
  explicit Selector(std::size_t PositionA) : mPosition(PositionA) {}

  template <class Sequence>
  std::size_t SlotIn(const Sequence& SequenceA) const {
    return mIsKey ? SequenceA.SlotOfKey(mKey) : SequenceA.SlotOfPosition(mPosition);
  }

 private:
  StringView mKey;
  std::size_t mPosition = 0;  // 0 is no position
  bool mIsKey = false;
};

}  // namespace mur
