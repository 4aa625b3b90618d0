#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/keyed_sequence.h>
#include <murtimeline/automation/object.h>
#include <murtimeline/automation/selector.h>
#include <murtimeline/automation/shared_text.h>

namespace mur {

/// An automation collection of shared objects: 1-based, in insertion order, keys unique when letter case is
/// ignored. A key is a string, the empty one included; a number selects by position. See KeyedSequence for
/// the cost of each operation.
template <class T>
class MUR_API Collection final : public Object {
 public:
  std::size_t Count() const noexcept { return mSequence.Count(); }

  /// False, with nothing changed, when the key is already there.
  bool Add(Ref<T> ItemA, SharedText KeyA) { return mSequence.Append({std::move(KeyA), std::move(ItemA)}); }
  bool Add(Ref<T> ItemA, StringView KeyA) { return Add(std::move(ItemA), SharedText(KeyA)); }

  /// The item that `SelectorA` names; none when there is none.
  Ref<T> Find(const Selector& SelectorA) const {
    const std::size_t slot = SlotOf(SelectorA);
    return slot == Sequence::kNone ? Ref<T>() : mSequence.At(slot).item;
  }
  Ref<T> Find(const Variant& KeyIndexA) const { return Find(Selector(KeyIndexA)); }
  Ref<T> FindByKey(StringView KeyA) const { return Find(Selector(KeyA)); }
  Ref<T> FindByPosition(std::size_t PositionA) const { return Find(Selector(PositionA)); }

  /// Takes the named item out and returns it; none when there is none.
  Ref<T> Remove(const Selector& SelectorA) {
    const std::size_t slot = SlotOf(SelectorA);
    return slot == Sequence::kNone ? Ref<T>() : mSequence.Remove(slot).item;
  }

  /// The 1-based position of the item with that key, 0 when there is none.
  std::size_t PositionOf(StringView KeyA) const {
    const std::size_t slot = mSequence.SlotOfKey(KeyA);
    return slot == Sequence::kNone ? 0 : mSequence.PositionOfSlot(slot);
  }

  /// Walks the items in order. The collection may change meanwhile: items that went are not met, items that
  /// came are met at the end.
  class Enumerator {
   public:
    explicit Enumerator(Ref<Collection> CollectionA) : mCollection(std::move(CollectionA)) {
      mCollection->mSequence.Pin();
    }
    Enumerator(const Enumerator& OtherA) : Enumerator(OtherA.mCollection) { mNext = OtherA.mNext; }
    Enumerator& operator=(const Enumerator&) = delete;
    ~Enumerator() { mCollection->mSequence.Unpin(); }

    /// The next item; none at the end.
    Ref<T> Next() {
      const std::size_t slot = mCollection->mSequence.NextSlot(mNext);
      if (slot == Sequence::kNone) return {};
      mNext = slot + 1;
      return mCollection->mSequence.At(slot).item;
    }
    void Reset() { mNext = 0; }

   private:
    Ref<Collection> mCollection;
    std::size_t mNext = 0;
  };

 private:
  struct Entry {
    SharedText key;
    Ref<T> item;
  };
  struct KeyOf {
    StringView operator()(const Entry& EntryA) const { return EntryA.key.View(); }
  };
  using Sequence = KeyedSequence<Entry, KeyOf>;

  std::size_t SlotOf(const Selector& SelectorA) const { return SelectorA.SlotIn(mSequence); }

  Sequence mSequence;
};

}  // namespace mur
