#include <algorithm>
#include <new>

#include <murtimeline/automation/narrow.h>
#include <murtimeline/automation/shared_text.h>

namespace mur {

SharedText::SharedText(StringView TextA) {
  if (TextA.empty()) return;
  const auto length = Narrow<std::uint32_t>(TextA.size());
  mBlock = new (::operator new(sizeof(Block) + TextA.size() * sizeof(char16_t))) Block{1, length};
  std::copy(TextA.begin(), TextA.end(), reinterpret_cast<char16_t*>(mBlock + 1));
}

void SharedText::Free(Block* BlockA) noexcept {
  ::operator delete(BlockA);
}

}  // namespace mur
