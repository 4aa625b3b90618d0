#pragma once

#include <cstdint>
#include <utility>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// A text that never changes and takes one pointer, none of its own memory while it is empty; copies share
/// it. For things that exist by the million: an object, the collections that hold it and its bar have one
/// key.
class MUR_API SharedText {
 public:
  SharedText() noexcept = default;
  explicit SharedText(StringView TextA);
  SharedText(const SharedText& OtherA) noexcept : mBlock(OtherA.mBlock) {
    if (mBlock) ++mBlock->references;
  }
  SharedText(SharedText&& OtherA) noexcept : mBlock(std::exchange(OtherA.mBlock, nullptr)) {}
  SharedText& operator=(SharedText OtherA) noexcept {
    std::swap(mBlock, OtherA.mBlock);
    return *this;
  }
  ~SharedText() {
    if (mBlock && --mBlock->references == 0) Free(mBlock);
  }

  StringView View() const noexcept {
    return mBlock ? StringView(reinterpret_cast<const char16_t*>(mBlock + 1), mBlock->length) : StringView();
  }

 private:
  // Followed by its units.
  struct Block {
    std::uint32_t references;
    std::uint32_t length;
  };

  static void Free(Block* BlockA) noexcept;

  Block* mBlock = nullptr;
};

}  // namespace mur
