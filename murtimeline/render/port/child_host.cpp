#include <murtimeline/render/port/child_host.h>

namespace mur {
namespace {
constexpr OleColor kSystemColorFlag = 0x80000000;
constexpr int kLastSystemColor = 30;

std::uint8_t ByteAt(OleColor ColorA, unsigned ShiftA) {
  return static_cast<std::uint8_t>(ColorA >> ShiftA & 0xFF);
}
}  // namespace

Rgba ResolveColor(OleColor ColorA, const ChildHost& HostA) {
  if ((ColorA & kSystemColorFlag) != 0)
    if (const int index = ByteAt(ColorA, 0); index <= kLastSystemColor) return HostA.SystemColor(index);
  return {ByteAt(ColorA, 0), ByteAt(ColorA, 8), ByteAt(ColorA, 16), 255};
}

}  // namespace mur
