#include <gtest/gtest.h>

#include <murtimeline/render/port/scripted_host.h>

using namespace mur;

TEST(ResolveColor, ReadsRedFromTheLowestByte) {
  const ScriptedChild host;
  EXPECT_EQ(ResolveColor(0x00112233, host), (Rgba{0x33, 0x22, 0x11, 255}));
}

TEST(ResolveColor, AsksTheHostForASystemColor) {
  const ScriptedChild host;
  EXPECT_EQ(ResolveColor(0x80000005, host), (Rgba{255, 255, 255, 255}));
  EXPECT_EQ(ResolveColor(0x8000001E, host), host.SystemColor(30));
}

TEST(ResolveColor, TakesAnUnknownSystemColorByItsBytes) {
  const ScriptedChild host;
  EXPECT_EQ(ResolveColor(0x8000001F, host), (Rgba{0x1F, 0, 0, 255}));
}
