#pragma once

#include <algorithm>
#include <cstring>
#include <memory>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>

namespace mur {

/// A text that takes one pointer, and no memory of its own while it is empty. For things that exist by the
/// million.
class MUR_API CompactText {
 public:
  CompactText() = default;
  explicit CompactText(StringView TextA) { Assign(TextA); }

  StringView View() const noexcept {
    if (!mBlock) return {};
    std::size_t length = 0;
    std::memcpy(&length, mBlock.get(), sizeof length);
    return {mBlock.get() + kHeader, length};
  }

  void Assign(StringView TextA) {
    if (TextA.empty()) {
      mBlock.reset();
      return;
    }
    // A block of its own first: the new text may lie in the old one.
    std::unique_ptr<char16_t[]> block(new char16_t[kHeader + TextA.size()]);
    const std::size_t length = TextA.size();
    std::memcpy(block.get(), &length, sizeof length);
    std::copy(TextA.begin(), TextA.end(), block.get() + kHeader);
    mBlock = std::move(block);
  }

 private:
  static constexpr std::size_t kHeader = sizeof(std::size_t) / sizeof(char16_t);  // the length comes first

  std::unique_ptr<char16_t[]> mBlock;
};

}  // namespace mur
