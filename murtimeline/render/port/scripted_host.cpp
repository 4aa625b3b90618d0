#include <array>

#include <murtimeline/render/port/scripted_host.h>

namespace mur {
namespace {

// The classic palette, by system colour index.
constexpr std::array<Rgba, 31> kClassicColors = {{
    {212, 208, 200}, {58, 110, 165},  {10, 36, 106},   {128, 128, 128}, {212, 208, 200}, {255, 255, 255},
    {0, 0, 0},       {0, 0, 0},       {0, 0, 0},       {255, 255, 255}, {212, 208, 200}, {212, 208, 200},
    {128, 128, 128}, {10, 36, 106},   {255, 255, 255}, {212, 208, 200}, {128, 128, 128}, {128, 128, 128},
    {0, 0, 0},       {212, 208, 200}, {255, 255, 255}, {64, 64, 64},    {212, 208, 200}, {0, 0, 0},
    {255, 255, 225}, {181, 181, 181}, {0, 0, 128},     {166, 202, 240}, {192, 192, 192}, {10, 36, 106},
    {212, 208, 200},
}};

}  // namespace

Rgba ScriptedChild::SystemColor(int IndexA) const {
  if (IndexA < 0 || static_cast<std::size_t>(IndexA) >= kClassicColors.size()) return {};
  return kClassicColors[static_cast<std::size_t>(IndexA)];
}

void ScriptedChild::ForgetInvalidations() {
  mInvalidated.clear();
  mInvalidatedAll = 0;
}

}  // namespace mur
